target_sources(QuorvelApi1Objects PRIVATE
    voice/AspVoipImplementorV1.cpp
    voice/AspVoipImplementorV2.cpp
    voice/AspVoipSettingsFacade.cpp
    voice/AspVoipSettingsFacadeAccounts.cpp
    voice/AspVoipSettingsFacadeHistory.cpp
    voice/GainConversion.cpp)
