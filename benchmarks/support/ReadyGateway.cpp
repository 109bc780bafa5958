#include "support/ReadyGateway.h"

#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "general/GeneralSettingsImplementor.h"
#include "internet/AdslSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/CpeSettingsImplementor.h"
#include "usbhost/UsbHostSettingsImplementor.h"
#include "voice/VoipSettingsImplementor.h"
#include "wan/WanSettingsImplementor.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>

namespace quorvel::bench
{

namespace
{

class ReadyExecutor : public RequestExecutor
{
public:
    int execute(const ParamMap&, ParamMap& result) override
    {
        result.clear();
        return RequestSucceeded;
    }
    void abortPendingRequests() override {}
};

/// Takes commands and writes nothing: a request's document is measured elsewhere.
class ReadyFormatter : public RequestFormatter
{
public:
    QString formatRequest() override
    {
        clearCommands();
        return QString();
    }
    QString formatCommands() override { return formatRequest(); }
    QString wrapCommands(const QString&) override { return QString(); }
};

class ReadyParser : public ResponseParser
{
public:
    explicit ReadyParser(const std::vector<ParamMap>& replies) : replies(replies) {}

    bool parse(const QString&, ParamMap& result) override
    {
        const ParamMap& reply = replies[turn];
        turn = (turn + 1) % replies.size();
        if (result.isEmpty())
            result = reply;
        else
            for (auto entry = reply.cbegin(); entry != reply.cend(); ++entry)
                result.insert(entry.key(), entry.value());
        return true;
    }

private:
    std::vector<ParamMap> replies;
    std::size_t turn = 0;
};

} // namespace

boost::shared_ptr<Cpe> builtGateway(const QString& address)
{
    ParamMap parameters{{CPE_PARAM_XML_VERSION, QStringLiteral("1.0.1")},
                        {CPE_PARAM_WAN_VERSION, QStringLiteral("2")},
                        {CPE_PARAM_VOIP_VERSION, QStringLiteral("2")}};
    for (const QString& function :
         {CPE_PARAM_GENERAL_SETTINGS_VERSION, CPE_PARAM_ADSL_VERSION, CPE_PARAM_ETHERNET_VERSION,
          CPE_PARAM_WIRELESS_VERSION, CPE_PARAM_WIRELESS_CORE_VERSION,
          CPE_PARAM_WIRELESS_NG_VERSION, CPE_PARAM_USBHOST_VERSION, CPE_PARAM_3G_VERSION,
          CPE_PARAM_PPTP_VERSION, CPE_PARAM_L2TP_VERSION, CPE_PARAM_WARRANTY_VERSION})
        parameters.insert(function, QStringLiteral("1"));
    TelvoraCpeBuilderAspV1 builder;
    builder.buildCpe(parameters);
    builder.buildSettingsImplementors();
    builder.buildRequestExecutor();
    builder.buildRequestFormatter();
    builder.buildResponseParser();
    builder.buildAuthenticator({QStringLiteral("admin"), QStringLiteral("admin"), address});
    AspCpeSessionStorage::getInstance()->setSession(address, QStringLiteral("SID=1"));
    return builder.getCpe();
}

boost::shared_ptr<Cpe> readyGateway(const std::vector<ParamMap>& replies, Requests requests)
{
    const boost::shared_ptr<Cpe> cpe = builtGateway(QStringLiteral("ready"));
    const auto executor = boost::make_shared<ReadyExecutor>();
    const auto parser = boost::make_shared<ReadyParser>(replies);
    const boost::shared_ptr<CpeSettingsImplementor> families[] = {
        cpe->getGeneralImplementor(),   cpe->getAdslImplementor(),     cpe->getWanImplementor(),
        cpe->getVoipImplementor(),      cpe->getWirelessImplementor(), cpe->getUsbHostImplementor(),
        cpe->getWirelessImplementorNG()};
    for (const auto& family : families) {
        family->setRequestExecutor(executor);
        if (requests == Requests::LeftOut)
            family->setRequestFormatter(boost::make_shared<ReadyFormatter>());
        family->setResponseParser(parser);
    }
    return cpe;
}

} // namespace quorvel::bench
