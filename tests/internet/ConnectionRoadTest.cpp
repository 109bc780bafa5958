#include "internet/AspAdslImplementorV1.h"
#include "internet/InternetFixture.h"
#include "support/RequestCases.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

/// A host's connection on its whole road: over which line, and what differs from the usual record.
struct Road {
    const char* name;
    Link link;
    const char* linkType;
    void (*change)(AspAdslSettings& settings);
};

void PrintTo(const Road& road, std::ostream* out)
{
    *out << road.name;
}

void nothing(AspAdslSettings&) {}

void staticForVpn(AspAdslSettings& settings)
{
    settings.vpnSettings.useStatic = true;
}

void staticForL2tp(AspAdslSettings& settings)
{
    settings.l2tpSettings.useStatic = true;
}

void staticForRussianPppoe(AspAdslSettings& settings)
{
    settings.russianPppoxSettings.useStatic = true;
}

void staticForAll(AspAdslSettings& settings)
{
    staticForVpn(settings);
    staticForL2tp(settings);
    staticForRussianPppoe(settings);
}

void unknownAnnexes(AspAdslSettings& settings)
{
    settings.supportedAnnexMode = AspAnnexUnknown;
    settings.currentAnnexMode = AspAnnexUnknown;
}

void annexB(AspAdslSettings& settings)
{
    settings.supportedAnnexMode = AspAnnexB;
    settings.currentAnnexMode = AspAnnexA;
}

void noInstances(AspAdslSettings& settings)
{
    for (const auto instance :
         {&AspAdslSettings::pppoxInstance, &AspAdslSettings::rfc2684Instance,
          &AspAdslSettings::vlanInstance, &AspAdslSettings::pvcInstance,
          &AspAdslSettings::dhcpcInstance, &AspAdslSettings::vpnInstance,
          &AspAdslSettings::l2tpInstance, &AspAdslSettings::staticInstance,
          &AspAdslSettings::bridgeInstance, &AspAdslSettings::wanVlanInstance})
        (settings.*instance).clear();
}

const Road dslRoads[] = {
    {"dslPppoe", Link::Dsl, "pppoe", &nothing},
    {"dslPppoa", Link::Dsl, "pppoa", &nothing},
    {"dslPppoeOfUnknownAnnexes", Link::Dsl, "pppoe", &unknownAnnexes},
    {"dslPppoeOfAnnexB", Link::Dsl, "pppoe", &annexB},
    {"dslPppoeUnmovedByStaticFlags", Link::Dsl, "pppoe", &staticForAll},
    {"dslPppoeOfNoInstances", Link::Dsl, "pppoe", &noInstances},
    {"dslVpn", Link::Dsl, "vpn", &nothing},
    {"dslVpnWithStatic", Link::Dsl, "vpn", &staticForVpn},
    {"dslL2tp", Link::Dsl, "l2tp", &nothing},
    {"dslL2tpWithStatic", Link::Dsl, "l2tp", &staticForL2tp},
    {"dslRussianPppoe", Link::Dsl, "russian_pppoe", &nothing},
    {"dslRussianPppoeWithStatic", Link::Dsl, "russian_pppoe", &staticForRussianPppoe},
    {"dslDhcp", Link::Dsl, "dhcp", &nothing},
    {"dslBridge", Link::Dsl, "bridge", &nothing},
    {"dslStatic", Link::Dsl, "static", &nothing}};

const Road ethernetRoads[] = {
    {"ethPppoe", Link::Ethernet, "pppoe", &nothing},
    {"ethPppoeUnmovedByStaticFlags", Link::Ethernet, "pppoe", &staticForAll},
    {"ethVpn", Link::Ethernet, "vpn", &nothing},
    {"ethVpnWithStatic", Link::Ethernet, "vpn", &staticForVpn},
    {"ethVpnUnmovedByAnothersStaticFlag", Link::Ethernet, "vpn", &staticForL2tp},
    {"ethVpnOfNoInstances", Link::Ethernet, "vpn", &noInstances},
    {"ethL2tp", Link::Ethernet, "l2tp", &nothing},
    {"ethL2tpWithStatic", Link::Ethernet, "l2tp", &staticForL2tp},
    {"ethRussianPppoe", Link::Ethernet, "russian_pppoe", &nothing},
    {"ethRussianPppoeWithStatic", Link::Ethernet, "russian_pppoe", &staticForRussianPppoe},
    {"ethDhcp", Link::Ethernet, "dhcp", &nothing},
    {"ethBridge", Link::Ethernet, "bridge", &nothing},
    {"ethStatic", Link::Ethernet, "static", &nothing}};

/// Notes the entries that it is handed, and then does its work.
class NotingImplementor : public AspAdslImplementorV1
{
public:
    bool setAdslSettings(const QString& wan, const QString& dsl, const ParamMap& settings,
                         ParamMap& result) override
    {
        noted = entries(settings);
        return AspAdslImplementorV1::setAdslSettings(wan, dsl, settings, result);
    }

    bool setEthSettings(const QString& wan, const ParamMap& settings, ParamMap& result) override
    {
        noted = entries(settings);
        return AspAdslImplementorV1::setEthSettings(wan, settings, result);
    }

    QStringList noted;
};

class ConnectionRoad : public InternetFacade, public testing::WithParamInterface<Road>
{
protected:
    void SetUp() override
    {
        InternetFacade::SetUp();
        const auto usual = cpe->getAdslImplementor();
        implementor->setRequestFormatter(usual->getRequestFormatter());
        implementor->setResponseParser(usual->getResponseParser());
        implementor->setRequestExecutor(usual->getRequestExecutor());
        implementor->setAuthenticator(usual->getAuthenticator());
        cpe->setAdslImplementor(implementor);
    }

    boost::shared_ptr<NotingImplementor> implementor = boost::make_shared<NotingImplementor>();
};

} // namespace

TEST_P(ConnectionRoad, LeadsFromTheHostsRecordOverEntriesToCommands)
{
    const Road& road = GetParam();
    AspAdslSettings settings = hostConnection(road.linkType);
    road.change(settings);
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    if (road.link == Link::Dsl)
        EXPECT_TRUE(facade.setAdslSettings(text("wan-3"), text("dsl-1"), settings, error));
    else
        EXPECT_TRUE(facade.setEthSettings(text("wan-3"), settings, error));
    EXPECT_EQ(error, 0);
    const QString whole = implementor->noted.join(QLatin1Char('\n')) + text("\n\n");
    EXPECT_TRUE(
        matchesGolden(text("internet/roads/") + text(road.name), whole + transcript(gateway)));
}

INSTANTIATE_TEST_SUITE_P(OverDsl, ConnectionRoad, testing::ValuesIn(dslRoads), CaseName());
INSTANTIATE_TEST_SUITE_P(OverEthernet, ConnectionRoad, testing::ValuesIn(ethernetRoads),
                         CaseName());

} // namespace quorvel::test
