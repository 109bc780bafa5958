target_sources(QuorvelApi1Objects PRIVATE
    usbhost/AspUsbHostSettingsFacade.cpp
    usbhost/AspUsbHostSettingsImplementorV1.cpp)
