#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

/// Requests of the gateway's connection objects, over DSL and over Ethernet.
///
/// `instance` is the object that is asked; any text goes to the gateway as it is.
class AdslSettingsImplementor : public CpeSettingsImplementor
{
public:
    virtual bool getUsernameExtension(ParamMap& result) = 0;
    virtual bool getPppoxSettings(const QString& instance, ParamMap& result) = 0;
    virtual bool getPppoxState(const QString& instance, ParamMap& result) = 0;
    virtual bool getPvcSettings(const QString& instance, ParamMap& result) = 0;
    virtual bool getDslState(const QString& instance, ParamMap& result) = 0;
    virtual bool getSupportedAnnexMode(const QString& instance, ParamMap& result) = 0;
    virtual bool getCurrentAnnexMode(const QString& instance, ParamMap& result) = 0;
    virtual bool getVpnSettings(const QString& instance, ParamMap& result) = 0;
    virtual bool getDhcpSettings(const QString& instance, ParamMap& result) = 0;
    virtual bool getStaticSettings(const QString& instance, ParamMap& result) = 0;
    virtual bool getWanVlanSettings(const QString& instance, ParamMap& result) = 0;
    virtual bool getRfc2684Encapsulation(const QString& instance, ParamMap& result) = 0;
    virtual bool getRfc2684VdslSupport(const QString& instance, ParamMap& result) = 0;

    /// Writes the DSL connection that `settings` describes, in one request. False without a request
    /// if it names no link type.
    virtual bool setAdslSettings(const QString& wanInstance, const QString& dslInstance,
                                 const ParamMap& settings, ParamMap& result) = 0;
    /// Writes the Ethernet connection that `settings` describes, in one request. False without a
    /// request if it names no link type.
    virtual bool setEthSettings(const QString& wanInstance, const ParamMap& settings,
                                ParamMap& result) = 0;
};

} // namespace quorvel
