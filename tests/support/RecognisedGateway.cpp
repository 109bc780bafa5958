#include "support/RecognisedGateway.h"

#include "support/Replies.h"

namespace quorvel::test
{

namespace
{

QString managerList(const QString& version, const QString& entry, const QStringList& managers)
{
    QString list = QStringLiteral("<response version=\"%1\">").arg(version);
    for (int i = 0; i < managers.size(); ++i)
        list += entry.arg(QString::number(i), managers[i]);
    return list + QLatin1String("</response>");
}

} // namespace

QString managerList100(const QStringList& managers)
{
    return managerList(QStringLiteral("1.0.0"),
                       QStringLiteral("<devmgr-0><mngr.inst%1>%2</mngr.inst%1></devmgr-0>"),
                       managers);
}

QString managerList101(const QStringList& managers)
{
    return managerList(
        QStringLiteral("1.0.1"),
        QStringLiteral("<devmgr-0><key>mngr.inst%1</key><value>%2</value></devmgr-0>"), managers);
}

AuthenticationInfo RecognisedGateway::info() const
{
    return infoWith("secret");
}

AuthenticationInfo RecognisedGateway::infoWith(const char* password) const
{
    return {QStringLiteral("admin"), QString::fromUtf8(password), gateway.address()};
}

void RecognisedGateway::scriptRecognition(const QStringList& managers, const QByteArray& session)
{
    const QString list = managerList101(managers);
    gateway.logIn(session).reply(list).reply(list);
    if (managers.contains(QStringLiteral("wan")))
        gateway.reply(reply101({{"route-0", "default_gw", "wan-2"}}))
            .reply(reply101({{"wan-2", "isnewwan", "1"}}));
}

void RecognisedGateway::scriptRefusal(int attempts)
{
    for (int i = 0; i < attempts; ++i)
        gateway.refuseLogin();
}

QByteArray RecognisedGateway::form(int index) const
{
    return gateway.request(index).body;
}

} // namespace quorvel::test
