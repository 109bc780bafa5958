#include "support/BuiltGateway.h"

#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "protocol/AspCpeSessionStorage.h"

namespace quorvel::test
{

boost::shared_ptr<Cpe> builtCpe(
    const QString& address, std::initializer_list<std::pair<const char*, const char*>> parameters)
{
    ParamMap found{{QStringLiteral("CPE_PARAM_GENERAL_SETTINGS_VERSION"), QStringLiteral("1")}};
    for (const auto& [name, version] : parameters)
        found.insert(QLatin1String("CPE_PARAM_") + QLatin1String(name), QLatin1String(version));
    TelvoraCpeBuilderAspV1 builder;
    const AuthenticationInfo info{QStringLiteral("admin"), QStringLiteral("secret"), address};
    EXPECT_TRUE(builder.buildCpe(found));
    EXPECT_TRUE(builder.buildSettingsImplementors());
    EXPECT_TRUE(builder.buildRequestExecutor());
    EXPECT_TRUE(builder.buildRequestFormatter());
    EXPECT_TRUE(builder.buildResponseParser());
    EXPECT_TRUE(builder.buildAuthenticator(info));
    AspCpeSessionStorage::getInstance()->setSession(address, QStringLiteral("SID=1"));
    return builder.getCpe();
}

void BuiltGateway::build(std::initializer_list<std::pair<const char*, const char*>> parameters)
{
    cpe = builtCpe(gateway.address(), parameters);
}

void BuiltGateway::buildNewest()
{
    build({{"XML_VERSION", "1.0.1"},
           {"ADSL_VERSION", "1"},
           {"ETHERNET_VERSION", "1"},
           {"WAN_VERSION", "2"},
           {"WIRELESS_VERSION", "1"},
           {"WIRELESS_CORE_VERSION", "1"},
           {"WIRELESS_NG_VERSION", "1"},
           {"VOIP_VERSION", "2"},
           {"USBHOST_VERSION", "1"},
           {"3G_VERSION", "1"},
           {"PPTP_VERSION", "1"},
           {"L2TP_VERSION", "1"},
           {"WARRANTY_VERSION", "1"}});
}

} // namespace quorvel::test
