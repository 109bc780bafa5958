#include "internet/AdslSettingsImplementor.h"
#include "support/RequestCases.h"

namespace quorvel::test
{

namespace
{

using I = AdslSettingsImplementor;
using Case = RequestCase<I>;
using Read = bool (I::*)(const QString& instance, ParamMap& result);

class InternetRequest : public BuiltGateway, public testing::WithParamInterface<Case>
{
protected:
    void SetUp() override { buildNewest(); }
};

/// The case of an operation that reads an instance.
Case read(const char* name, Read operation, const char* instance)
{
    return {name, [=](I& i, ParamMap& r) { return (i.*operation)(text(instance), r); }};
}

} // namespace

TEST_P(InternetRequest, PutsItsCommandsOnTheWire)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(GetParam().operation(*cpe->getAdslImplementor(), result));
    EXPECT_TRUE(matchesGolden(text("internet/") + text(GetParam().name), transcript(gateway)));
    EXPECT_EQ(entries(result), lines({"response=1.0.1", "webapp.error=0"}));
}

INSTANTIATE_TEST_SUITE_P(
    AllReads, InternetRequest,
    testing::Values(Case{"getUsernameExtension", &I::getUsernameExtension},
                    read("getPppoxSettings", &I::getPppoxSettings, "pppox-1"),
                    read("getPppoxSettingsOfNoInstance", &I::getPppoxSettings, ""),
                    read("getPppoxState", &I::getPppoxState, "pppox-1"),
                    read("getPvcSettings", &I::getPvcSettings, "pvc-4"),
                    read("getDslState", &I::getDslState, "dsl-1"),
                    read("getSupportedAnnexMode", &I::getSupportedAnnexMode, "dsl-1"),
                    read("getCurrentAnnexMode", &I::getCurrentAnnexMode, "dsl-1"),
                    read("getVpnSettings", &I::getVpnSettings, "vpn-6"),
                    read("getDhcpSettings", &I::getDhcpSettings, "dhcpc-8"),
                    read("getStaticSettings", &I::getStaticSettings, "static-5"),
                    read("getWanVlanSettings", &I::getWanVlanSettings, "wan_vlan-9"),
                    read("getRfc2684Encapsulation", &I::getRfc2684Encapsulation, "rfc2684-2"),
                    // Whatever instance is asked, the same goes out.
                    read("getRfc2684VdslSupport", &I::getRfc2684VdslSupport, "rfc2684-0"),
                    Case{"getRfc2684VdslSupportOfAnother",
                         [](I& i, ParamMap& r) {
                             return i.getRfc2684VdslSupport(text("rfc2684-2"), r);
                         }}),
    CaseName());

using InternetQueue = BuiltGateway;

TEST_F(InternetQueue, DropsWhatAnEarlierOperationLeftInIt)
{
    buildNewest();
    cpe->getAdslImplementor()->getRequestFormatter()->addCommand(text("sysmgr-0"), text("reboot"),
                                                                 QString());
    gateway.reply(reply101({}));
    ParamMap result;
    EXPECT_TRUE(cpe->getAdslImplementor()->getPppoxState(text("pppox-1"), result));
    EXPECT_EQ(transcript(gateway), text("POST /cgi-bin/webapp\n"
                                        "cookie SID=1\n"
                                        "version 1.0.1\n"
                                        "query \"pppox-1\" \"state\" \"\"\n"));
}

TEST_F(InternetQueue, SpeaksTheOlderDialectToAnOlderGateway)
{
    build({{"XML_VERSION", "1.0.0"}, {"ETHERNET_VERSION", "1"}});
    gateway.reply(reply100({{"dsl-0", "annex", "b"}}));
    ParamMap result;
    EXPECT_TRUE(cpe->getAdslImplementor()->getCurrentAnnexMode(text("dsl-0"), result));
    EXPECT_EQ(transcript(gateway), text("POST /cgi-bin/webapp\n"
                                        "cookie SID=1\n"
                                        "version 1.0.0\n"
                                        "command \"cfgmgr-0\" \"begin_transaction\" \"dsl-0\"\n"
                                        "get \"dsl-0\" \"annex\" \"\"\n"
                                        "command \"cfgmgr-0\" \"end_transaction\" \"dsl-0\"\n"));
    EXPECT_EQ(entries(result), lines({"dsl-0.annex=b", "response=1.0.0"}));
}

} // namespace quorvel::test
