target_sources(QuorvelApi1Objects PRIVATE
    wan/AspWanSettingsImplementor.cpp
    wan/AspWanSettingsImplementorV1.cpp
    wan/AspWanSettingsImplementorV2.cpp)
