#pragma once

#include "wireless/WirelessSettingsImplementor.h"

namespace quorvel
{

/// What both generations of radios share.
class AspWirelessImplementor : public WirelessSettingsImplementor
{
public:
    bool checkWpsEnabledStatus(ParamMap& result, const QString& entity) override;
    bool setWpsEnabledStatus(ParamMap& result, bool enabled, const QString& entity) override;
    bool getWirelessClientMacList(const QString& entity, ParamMap& result) override;

protected:
    /// Writes name, security mode under `modeKey`, and the key that the mode needs. `prefix` is the
    /// access point's and stands before all keys but those of WEP. The values stand in `settings`
    /// under `inst` and their keys without the prefix.
    static CommandList writeNetwork(const QString& inst, const QString& prefix,
                                    const QString& modeKey, const ParamMap& settings);

    /// Puts WPS into the registrar role, as every write of settings does.
    static CommandList becomeRegistrar(const QString& inst);

    /// The frame of an operation that gives its commands as text in place of sending them.
    QString format(const CommandList& commands);
};

} // namespace quorvel
