#include "SimulatedRadios.h"
#include "wireless/WirelessFixture.h"

#include <array>
#include <functional>

namespace quorvel::test
{

namespace
{

struct RadioWrite {
    const char* name;
    /// How many commands its request has.
    int commands;
    /// Returns the error that the facade reports.
    std::function<int(AspWirelessSettingsFacadeManager&, AspWirelessSettingsFacade&)> run;
};

std::ostream& operator<<(std::ostream& out, const RadioWrite& write)
{
    return out << write.name;
}

/// A write of radios is one request: whatever strikes in its middle, what the gateway tells
/// afterwards and what a restart would bring back is all of it or nothing.
class RadioAtomicity : public SimulatedRadios, public testing::WithParamInterface<RadioWrite>
{
public:
    static int writeBoth(AspWirelessSettingsFacadeManager& radios, AspWirelessSettingsFacade&)
    {
        AspWebAppErrorCodes error = AspWebAppNoError;
        radios.setWirelessSettings(bothNetworks(), error);
        return error;
    }

    static int writeOlder(AspWirelessSettingsFacadeManager&, AspWirelessSettingsFacade& older)
    {
        AspWebAppErrorCodes error = AspWebAppNoError;
        older.setWirelessSettings(AspWirelessDisabled, network("Old", "wep", "0123456789"), error);
        return error;
    }

    static int startWps(AspWirelessSettingsFacadeManager&, AspWirelessSettingsFacade& older)
    {
        AspWebAppErrorCodes error = AspWebAppNoError;
        older.setWpsEnabledStatus(true, error);
        return error;
    }

protected:
    void SetUp() override
    {
        SimulatedRadios::SetUp();
        before = gateway.storedObjects();
        toldBefore = told();
    }

    /// All that the radios tell of their settings.
    QStringList told()
    {
        gateway.clearFaults();
        QStringList all;
        for (const int radio : {0, 1}) {
            all.append(settingsOf(radio));
            EXPECT_EQ(error, 0);
        }
        all.append(QString::number(older->checkWirelessStatus(error)));
        EXPECT_EQ(error, 0);
        all.append(QString::number(older->checkWpsEnabledStatus(error)));
        all.append(QString::number(older->getWpsRole(error)));
        return all;
    }

    /// The write under a fault that strikes once; the error that the facade reports.
    int writeUnder(const std::string& fault)
    {
        inject(fault + " 1 on=webapp");
        return GetParam().run(*radios, *older);
    }

    void expectNothingChangedUnder(const std::string& fault, int reported)
    {
        SCOPED_TRACE(fault);
        EXPECT_EQ(writeUnder(fault), reported);
        EXPECT_EQ(gateway.storedObjects(), before);
        EXPECT_EQ(told(), toldBefore);
    }

    static constexpr std::array lostReplies{"close",    "reset:60", "radio-restart",
                                            "truncate", "garbage",  "http:500"};
    simulator::Objects before;
    QStringList toldBefore;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Writes, RadioAtomicity,
                         testing::Values(RadioWrite{"OfBothRadios", 25, RadioAtomicity::writeBoth},
                                         RadioWrite{"OfTheOlderRadio", 17,
                                                    RadioAtomicity::writeOlder},
                                         RadioWrite{"OfWps", 8, RadioAtomicity::startWps}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(RadioAtomicity, ACommandThatFailsLeavesTheOldState)
{
    for (int number = 1; number <= GetParam().commands; ++number)
        expectNothingChangedUnder("command-fails:" + std::to_string(number), 11);
}

TEST_P(RadioAtomicity, APowerCutLeavesTheOldState)
{
    for (int number = 1; number <= GetParam().commands; ++number)
        expectNothingChangedUnder("power-cut:" + std::to_string(number), 29);
}

TEST_P(RadioAtomicity, ALostReplyWithoutEffectLeavesTheOldState)
{
    for (const char* fault : lostReplies)
        expectNothingChangedUnder(fault + std::string(" effect=no"), 29);
}

TEST_P(RadioAtomicity, ALostReplyWithEffectLeavesTheNewState)
{
    // A fault at a command that the request hasn't got lets it pass.
    ASSERT_EQ(writeUnder("command-fails:" + std::to_string(GetParam().commands + 1)), 0);
    const simulator::Objects after = gateway.storedObjects();
    const QStringList toldAfter = told();
    ASSERT_NE(after, before);
    ASSERT_NE(toldAfter, toldBefore);
    for (const char* fault : lostReplies) {
        SCOPED_TRACE(fault);
        for (const auto& [instance, values] : before) {
            for (const auto& [key, value] : values)
                gateway.setValue(instance, key, value);
        }
        ASSERT_EQ(told(), toldBefore);
        EXPECT_EQ(writeUnder(fault), 29);
        EXPECT_EQ(gateway.storedObjects(), after);
        EXPECT_EQ(told(), toldAfter);
    }
}

} // namespace quorvel::test
