#include "wan/WanFixture.h"

#include <ostream>

namespace quorvel::test
{

namespace
{

/// How often a line stands among the commands.
struct Count {
    const char* line;
    int times;
};

/// A write that doesn't do what one might think.
struct Oddity {
    const char* name;
    void (*write)(AspWanSettingsFacade& facade, AspWebAppErrorCodes& error);
    int requests;
    std::vector<Count> counts;
};

void PrintTo(const Oddity& oddity, std::ostream* out)
{
    *out << oddity.name;
}

const char* const saving = "command \"cfgmgr-0\" \"save\" \"\"\n";

const Oddity oddities[] = {
    {"BeginsNoTransactionOnACreatedEntity",
     [](AspWanSettingsFacade& f, AspWebAppErrorCodes& e) {
         f.addEntity(text("wan-3"), text("pvc"), e);
     },
     2,
     {{"command \"cfgmgr-0\" \"begin_transaction\" \"pvc-4\"\n", 0},
      {"set \"pvc-4\" \"enabled\" \"1\"\n", 1},
      {"command \"cfgmgr-0\" \"commit\" \"pvc-4\"\n", 1},
      {"command \"cfgmgr-0\" \"end_transaction\" \"pvc-4\"\n", 1},
      {"command \"cfgmgr-0\" \"begin_transaction\" \"wan-3\"\n", 1}}},
    {"SavesAnAddedEntityBeforeEitherIsApplied",
     [](AspWanSettingsFacade& f, AspWebAppErrorCodes& e) {
         f.addEntity(text("wan-3"), text("pvc"), e);
     },
     2,
     {{"command \"cfgmgr-0\" \"save\" \"\"\ncommand \"pvc-4\" \"apply\" \"\"\n"
       "command \"wan-3\" \"apply\" \"\"\n",
       1}}},
    {"SavesNothingWhenTheConnectionIsSwitched",
     [](AspWanSettingsFacade& f, AspWebAppErrorCodes& e) {
         f.switchConnectionType({text("wan-1")}, {text("wan-0")}, text("wan-1"), e);
     },
     1,
     {{saving, 0},
      {"command \"route-0\" \"apply_default_gw\" \"\"\n", 1},
      {"command \"route-0\" \"apply\" \"\"\n", 0},
      {"command \"wan-0\" \"apply\" \"\"\n", 1}}},
    {"SavesASmallChangeBeforeItIsApplied",
     [](AspWanSettingsFacade& f, AspWebAppErrorCodes& e) { f.enableWan(text("wan-3"), e); },
     1,
     {{"command \"cfgmgr-0\" \"save\" \"\"\ncommand \"wan-3\" \"apply\" \"\"\n", 1}}},
    {"ForcesTheModemAtItsOwnObject",
     [](AspWanSettingsFacade& f, AspWebAppErrorCodes& e) {
         Asp3GSettings settings;
         settings.force3g = true;
         f.set3GSettings(text("wan-3"), text("serial-0"), settings, e);
     },
     1,
     {{"set \"serial-0\" \"force3g\" \"1\"\n", 1}, {"set \"wan-3\" \"force3g\"", 0}}}};

class WanOddity : public WanFacade, public testing::WithParamInterface<Oddity>
{
};

} // namespace

TEST_P(WanOddity, StandsOnTheWire)
{
    for (int i = 0; i < GetParam().requests; ++i)
        gateway.reply(reply101({{"devmgr-0", "create_inst.pvc", "pvc-4"}}));
    GetParam().write(facade, error);
    EXPECT_EQ(error, 0);
    const QString sent = transcript(gateway);
    for (const auto& [line, times] : GetParam().counts)
        EXPECT_EQ(sent.count(text(line)), times) << line << "in\n" << sent.toStdString();
}

INSTANTIATE_TEST_SUITE_P(OfWrites, WanOddity, testing::ValuesIn(oddities), CaseName());

} // namespace quorvel::test
