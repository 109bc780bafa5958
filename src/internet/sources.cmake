target_sources(QuorvelApi1Objects PRIVATE
    internet/AspAdslImplementorV1.cpp
    internet/AspAdslSettingsFacade.cpp
    internet/AspAdslSettingsFacadeModes.cpp
    internet/AspAdslSettingsFacadeWrites.cpp
    internet/ConnectionCommands.cpp
    internet/ConnectionEntries.cpp
    internet/ConnectionOverDsl.cpp
    internet/ConnectionOverEthernet.cpp)
