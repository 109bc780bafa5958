#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

/// Requests of everything that is not tied to one network function. Every gateway must have it: the
/// facades judge a Cpe by it.
class GeneralSettingsImplementor : public CpeSettingsImplementor
{
public:
    virtual bool getStaticClientList(const QString& instance, ParamMap& result) = 0;
    virtual bool getDynamicClientList(const QString& instance, ParamMap& result) = 0;
    virtual bool getEthMacAddress(ParamMap& result) = 0;
    virtual bool getDslMacAddress(ParamMap& result) = 0;
    virtual bool getWlanMacAddress(ParamMap& result) = 0;
    virtual bool getFirmwareVersion(ParamMap& result) = 0;
    virtual bool getModelName(ParamMap& result) = 0;
    virtual bool getRouterMode(ParamMap& result) = 0;
    virtual bool getSerialNumber(ParamMap& result) = 0;
    virtual bool checkSession(const QString& session, ParamMap& result) = 0;
    virtual bool deleteSession(ParamMap& result) = 0;
    virtual bool setCpeInternetModeAp2Router(const QString& mode, ParamMap& result) = 0;
    virtual bool setCpePassword(const QString& password, ParamMap& result) = 0;
    virtual bool checkCpePassword(const QString& password, ParamMap& result) = 0;
    virtual bool isRebootRequired(ParamMap& result) = 0;
    virtual bool getRebootDuration(ParamMap& result) = 0;
    virtual bool getFwUpgradeDuration(ParamMap& result) = 0;
    virtual bool factoryDefault(ParamMap& result) = 0;
    virtual bool rebootCpe(ParamMap& result) = 0;
    virtual bool getDefaultGw(const QString& routeInstance, ParamMap& result) = 0;
    virtual bool setDefaultGw(const QString& routeInstance, const QString& wanInstance,
                              ParamMap& result) = 0;
    virtual bool getManagerList(ParamMap& result) = 0;
    virtual bool getWirelessCoreList(ParamMap& result) = 0;
    virtual bool getManagerInstanceList(const QString& manager, ParamMap& result) = 0;
    virtual bool queryParameter(const QString& manager, const QString& parameter,
                                const QString& value, ParamMap& result) = 0;
    virtual bool getWarrantyInformation(ParamMap& result) = 0;
    virtual bool setWarrantyInformation(const ParamMap& values, ParamMap& result) = 0;
};

} // namespace quorvel
