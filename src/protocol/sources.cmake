target_sources(QuorvelApi1Objects PRIVATE
    protocol/AbortSignal.h
    protocol/AspCpeAuthenticatorV1.cpp
    protocol/AspCpeSessionStorage.cpp
    protocol/AspRequestDocument.cpp
    protocol/AspRequestFormatterV1.cpp
    protocol/AspRequestFormatterV2.cpp
    protocol/AspResponseDocument.cpp
    protocol/AspResponsePairs.cpp
    protocol/AspResponseParser3g.cpp
    protocol/AspResponseParserV1.cpp
    protocol/AspResponseParserV2.cpp
    protocol/AuthenticationSettingsImplementor.cpp
    protocol/CommandList.cpp
    protocol/CpeSettingsImplementor.cpp
    protocol/GuardedXmlReader.cpp
    protocol/HttpRequestExecutor.cpp
    protocol/Log.cpp
    protocol/NetworkExchange.cpp
    protocol/RehearsalExecutor.cpp
    protocol/RequestFormatter.cpp)

# Reading through a guarded reader of our own is what Qt calls deprecated; its other ways to read a
# document drop texts of mere white space and can't be guarded while they read.
set_source_files_properties(protocol/AspResponseDocument.cpp protocol/GuardedXmlReader.cpp
    PROPERTIES COMPILE_DEFINITIONS QT_NO_DEPRECATED_WARNINGS)
