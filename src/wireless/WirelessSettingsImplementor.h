#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

/// Requests of one generation of radios.
///
/// An operation with nothing to ask of its generation sends nothing and says so by its result.
class WirelessSettingsImplementor : public CpeSettingsImplementor
{
public:
    virtual bool checkWpsEnabledStatus(ParamMap& result, const QString& entity) = 0;
    virtual bool checkWirelessStatus(ParamMap& result, const QString& entity) = 0;
    virtual bool setWpsEnabledStatus(ParamMap& result, bool enabled, const QString& entity) = 0;
    virtual bool getWpsRole(ParamMap& result, const QString& entity) = 0;
    virtual bool isSecurityProxyEnabled(ParamMap& result, const QString& entity) = 0;
    virtual bool getWirelessSettings(const QString& ap, const QString& manager,
                                     ParamMap& result) = 0;
    virtual bool setWirelessSettings(const ParamMap& settings, const QString& manager,
                                     ParamMap& result) = 0;
    /// The commands of a write as text, to be joined with those of other radios. Sends nothing;
    /// empty in a dialect without that form.
    virtual QString getWirelessSettingsQuery(const ParamMap& settings, const QString& ap,
                                             const QString& manager, ParamMap& result) = 0;
    virtual bool getWirelessClientMacList(const QString& entity, ParamMap& result) = 0;
    virtual bool getWirelessMeshInstances(ParamMap& result) = 0;
    virtual bool getWirelessMeshInstanceInfo(const QString& instance, const QString& manager,
                                             ParamMap& result) = 0;
    virtual bool getWirelessSecurityMode(const QString& ap, const QString& manager,
                                         ParamMap& result) = 0;
    virtual bool getWirelessCapabilities(ParamMap& result, const QString& manager) = 0;
    virtual bool getTxMode(ParamMap& result, const QString& manager) = 0;
};

} // namespace quorvel
