target_sources(QuorvelApi1Objects PRIVATE
    wireless/AspWirelessImplementor.cpp
    wireless/AspWirelessImplementorNG.cpp
    wireless/AspWirelessImplementorV1.cpp
    wireless/AspWirelessSettingsFacade.cpp
    wireless/AspWirelessSettingsFacadeManager.cpp
    wireless/AspWirelessSettingsFacadeNG.cpp
    wireless/Capabilities.cpp
    wireless/CapabilityDocument.cpp
    wireless/WirelessCall.cpp)
