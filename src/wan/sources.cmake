target_sources(QuorvelApi1Objects PRIVATE
    wan/AspWanSettingsFacade.cpp
    wan/AspWanSettingsFacade3G.cpp
    wan/AspWanSettingsFacadeChanges.cpp
    wan/AspWanSettingsFacadeDefaultGw.cpp
    wan/AspWanSettingsFacadeDetails.cpp
    wan/AspWanSettingsImplementor.cpp
    wan/AspWanSettingsImplementorV1.cpp
    wan/AspWanSettingsImplementorV2.cpp)
