#include "assembly/TelvoraCpeBuilderAspV1.h"

#include "general/AspGeneralSettingsImplV1.h"
#include "internet/AspAdslImplementorV1.h"
#include "protocol/AspRequestFormatterV1.h"
#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParserV1.h"
#include "protocol/AspResponseParserV2.h"
#include "usbhost/AspUsbHostSettingsImplementorV1.h"
#include "voice/AspVoipImplementorV1.h"
#include "voice/AspVoipImplementorV2.h"
#include "wan/AspWanSettingsImplementorV1.h"
#include "wan/AspWanSettingsImplementorV2.h"
#include "wireless/AspWirelessImplementorNG.h"
#include "wireless/AspWirelessImplementorV1.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

namespace
{

/// A gateway may have radios of both generations.
void addRadios(Cpe& cpe, const ParamMap& parameters)
{
    if (!parameters.contains(CPE_PARAM_WIRELESS_VERSION))
        return;
    if (parameters.value(CPE_PARAM_WIRELESS_CORE_VERSION) == QLatin1String("1"))
        cpe.setWirelessImplementor(boost::make_shared<AspWirelessImplementorV1>());
    if (parameters.value(CPE_PARAM_WIRELESS_NG_VERSION) == QLatin1String("1"))
        cpe.setWirelessImplementorNG(boost::make_shared<AspWirelessImplementorNG>());
}

} // namespace

bool TelvoraCpeBuilderAspV1::buildSettingsImplementors()
{
    if (!canRun("buildSettingsImplementors"))
        return false;
    const boost::shared_ptr<Cpe> cpe = getCpe();
    const ParamMap& parameters = *cpe->getParameters();
    if (parameters.contains(CPE_PARAM_ADSL_VERSION) ||
        parameters.contains(CPE_PARAM_ETHERNET_VERSION))
        cpe->setAdslImplementor(boost::make_shared<AspAdslImplementorV1>());
    addRadios(*cpe, parameters);
    if (parameters.value(CPE_PARAM_VOIP_VERSION) == QLatin1String("1"))
        cpe->setVoipImplementor(boost::make_shared<AspVoipImplementorV1>());
    else if (parameters.contains(CPE_PARAM_VOIP_VERSION))
        cpe->setVoipImplementor(boost::make_shared<AspVoipImplementorV2>());
    if (parameters.contains(CPE_PARAM_GENERAL_SETTINGS_VERSION))
        cpe->setGeneralImplementor(boost::make_shared<AspGeneralSettingsImplV1>());
    if (parameters.value(CPE_PARAM_WAN_VERSION) == QLatin1String("1"))
        cpe->setWanImplementor(boost::make_shared<AspWanSettingsImplementorV1>());
    else if (parameters.contains(CPE_PARAM_WAN_VERSION))
        cpe->setWanImplementor(boost::make_shared<AspWanSettingsImplementorV2>());
    if (parameters.contains(CPE_PARAM_USBHOST_VERSION))
        cpe->setUsbHostImplementor(boost::make_shared<AspUsbHostSettingsImplementorV1>());
    return true;
}

bool TelvoraCpeBuilderAspV1::buildRequestFormatter()
{
    if (!canRun("buildRequestFormatter"))
        return false;
    for (const auto& implementor : settingsImplementors()) {
        if (speaksNewerDialect())
            implementor->setRequestFormatter(boost::make_shared<AspRequestFormatterV2>());
        else
            implementor->setRequestFormatter(boost::make_shared<AspRequestFormatterV1>());
    }
    return true;
}

bool TelvoraCpeBuilderAspV1::buildResponseParser()
{
    if (!canRun("buildResponseParser"))
        return false;
    for (const auto& implementor : settingsImplementors()) {
        if (speaksNewerDialect())
            implementor->setResponseParser(boost::make_shared<AspResponseParserV2>());
        else
            implementor->setResponseParser(boost::make_shared<AspResponseParserV1>());
    }
    return true;
}

bool TelvoraCpeBuilderAspV1::canRun(const char* step) const
{
    const QString name =
        QLatin1String("TelvoraCpeBuilderAspV1::") + QLatin1String(step) + QLatin1String(" - ");
    return hasCpe(name + QLatin1String("No cpe found...You have to build cpe firstly...")) &&
           hasParameters(name);
}

bool TelvoraCpeBuilderAspV1::speaksNewerDialect() const
{
    const QString older = QStringLiteral("1.0.0");
    return getCpe()->getParameters()->value(CPE_PARAM_XML_VERSION, older) != older;
}

} // namespace quorvel
