#include "support/BuiltGateway.h"

#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "protocol/AspCpeSessionStorage.h"

namespace quorvel::test
{

namespace
{

using Parameters = std::initializer_list<std::pair<const char*, const char*>>;

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

boost::shared_ptr<Cpe> builtCpe(const ParamMap& parameters, const QString& address)
{
    TelvoraCpeBuilderAspV1 builder;
    const AuthenticationInfo info{QStringLiteral("admin"), QStringLiteral("secret"), address};
    const bool built = builder.buildCpe(parameters) && builder.buildSettingsImplementors() &&
                       builder.buildRequestExecutor() && builder.buildRequestFormatter() &&
                       builder.buildResponseParser() && builder.buildAuthenticator(info);
    return built ? builder.getCpe() : boost::shared_ptr<Cpe>();
}

void BuiltGateway::build(Parameters parameters)
{
    takeCpe(named(parameters));
}

void BuiltGateway::buildNewest()
{
    takeCpe(newestParameters());
}

void BuiltGateway::takeCpe(const ParamMap& parameters)
{
    cpe = builtCpe(parameters, gateway.address());
    ASSERT_TRUE(cpe);
    AspCpeSessionStorage::getInstance()->setSession(gateway.address(), QStringLiteral("SID=1"));
}

} // namespace quorvel::test
