target_sources(QuorvelApi1Objects PRIVATE
    assembly/AspCpeRecognizer.cpp
    assembly/Cpe.cpp
    assembly/CpeBuilder.cpp
    assembly/CpeBuilderDirector.cpp
    assembly/CpeBuilderFactory.cpp
    assembly/RehearsalBuilder.cpp
    assembly/TelvoraCpeBuilderAspV1.cpp)
