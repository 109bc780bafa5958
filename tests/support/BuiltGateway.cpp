#include "support/BuiltGateway.h"

#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "protocol/AspCpeSessionStorage.h"

namespace quorvel::test
{

namespace
{

ParamMap named(Parameters parameters)
{
    ParamMap found{{QStringLiteral("CPE_PARAM_GENERAL_SETTINGS_VERSION"), QStringLiteral("1")}};
    for (const auto& [name, version] : parameters)
        found.insert(QLatin1String("CPE_PARAM_") + QLatin1String(name), QLatin1String(version));
    return found;
}

} // namespace

ParamMap newestParameters()
{
    return named({{"XML_VERSION", "1.0.1"},
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

boost::shared_ptr<Cpe> builtCpe(const QString& address, const ParamMap& found)
{
    TelvoraCpeBuilderAspV1 builder;
    const AuthenticationInfo info{QStringLiteral("admin"), QStringLiteral("secret"), address};
    const bool built = builder.buildCpe(found) && builder.buildSettingsImplementors() &&
                       builder.buildRequestExecutor() && builder.buildRequestFormatter() &&
                       builder.buildResponseParser() && builder.buildAuthenticator(info);
    EXPECT_TRUE(built);
    AspCpeSessionStorage::getInstance()->setSession(address, QStringLiteral("SID=1"));
    return builder.getCpe();
}

boost::shared_ptr<Cpe> builtCpe(const QString& address, Parameters parameters)
{
    return builtCpe(address, named(parameters));
}

void BuiltGateway::build(Parameters parameters)
{
    cpe = builtCpe(gateway.address(), parameters);
}

void BuiltGateway::buildNewest()
{
    cpe = builtCpe(gateway.address(), newestParameters());
}

} // namespace quorvel::test
