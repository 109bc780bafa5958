target_sources(QuorvelApi1Objects PRIVATE
    wireless/AspWirelessImplementor.cpp
    wireless/AspWirelessImplementorNG.cpp
    wireless/AspWirelessImplementorV1.cpp
    wireless/Capabilities.cpp)
