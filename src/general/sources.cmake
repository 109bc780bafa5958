target_sources(QuorvelApi1Objects PRIVATE
    general/AspGeneralSettingsFacade.cpp
    general/AspGeneralSettingsFacadeAccess.cpp
    general/AspGeneralSettingsFacadeLists.cpp
    general/AspGeneralSettingsFacadeReboot.cpp
    general/AspGeneralSettingsImplV1.cpp)
