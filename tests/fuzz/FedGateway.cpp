#include "fuzz/FedGateway.h"

#include "general/GeneralSettingsImplementor.h"
#include "internet/AdslSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/ParamKeys.h"
#include "support/BuiltGateway.h"
#include "usbhost/UsbHostSettingsImplementor.h"
#include "voice/VoipSettingsImplementor.h"
#include "wan/WanSettingsImplementor.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>
#include <ostra/OstraLogger.h>

namespace quorvel::fuzz
{

namespace
{

const QString address = QStringLiteral("192.0.2.1");

ParamMap parameters(bool speaksNewerDialect)
{
    ParamMap found = test::newestParameters();
    if (!speaksNewerDialect) {
        found.insert(CPE_PARAM_XML_VERSION, QStringLiteral("1.0.0"));
        found.insert(CPE_PARAM_WAN_VERSION, QStringLiteral("1"));
        found.insert(CPE_PARAM_VOIP_VERSION, QStringLiteral("1"));
    }
    return found;
}

void feed(Cpe& cpe, const boost::shared_ptr<RequestExecutor>& executor)
{
    const boost::shared_ptr<CpeSettingsImplementor> all[] = {
        cpe.getAdslImplementor(),   cpe.getWirelessImplementor(), cpe.getWirelessImplementorNG(),
        cpe.getVoipImplementor(),   cpe.getGeneralImplementor(),  cpe.getWanImplementor(),
        cpe.getUsbHostImplementor()};
    for (const auto& implementor : all)
        implementor->setRequestExecutor(executor);
}

} // namespace

int FedExecutor::execute(const ParamMap& params, ParamMap& result)
{
    if (params.value(HTTP_PARAM_PATH) == QLatin1String("/cgi-bin/webapp"))
        requests.append(params.value(HTTP_PARAM_DATA_TO_SEND));
    if (replies.isEmpty())
        return RequestNetworkFailure;
    if (params.value(HTTP_PARAM_PATH) != QLatin1String("/cgi-bin/webapp")) {
        result = {{QStringLiteral("Set-Cookie"), QStringLiteral("SID=fed")}};
        return RequestSucceeded;
    }
    const QString reply = replies.takeFirst();
    if (reply.size() == 2 && reply[0] == QLatin1Char('!') && reply[1] > QLatin1Char('0') &&
        reply[1] <= QLatin1Char('5'))
        return reply[1].digitValue();
    result = {{REQUEST_EXEC_PARAM_RESULT, reply}};
    return RequestSucceeded;
}

FedGateway::FedGateway(bool speaksNewerDialect, const QStringList& replies)
    : executor(boost::make_shared<FedExecutor>(replies)),
      cpe(test::builtCpe(address, parameters(speaksNewerDialect)))
{
    // Lines are made up and dropped.
    OstraLogger::getInstance()->setSink([](const QString&, int, const QString&) {});
    feed(*cpe, executor);
    AspCpeSessionStorage::getInstance()->setSession(address, QStringLiteral("SID=fed"));
}

FedGateway::~FedGateway()
{
    cpe->setAdslImplementor({});
    cpe->setWirelessImplementor({});
    cpe->setWirelessImplementorNG({});
    cpe->setVoipImplementor({});
    cpe->setGeneralImplementor({});
    cpe->setWanImplementor({});
    cpe->setUsbHostImplementor({});
    cpe->setParameters({});
}

QString pairReply(const QString& object, const ParamMap& entries)
{
    QString reply = QStringLiteral("<response version=\"1.0.1\">");
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        reply += QStringLiteral("<%1><key>").arg(object) + entry.key().toHtmlEscaped() +
                 QLatin1String("</key><value>") + entry.value().toHtmlEscaped() +
                 QLatin1String("</value></") + object + QLatin1Char('>');
    return reply + QLatin1String("</response>");
}

} // namespace quorvel::fuzz
