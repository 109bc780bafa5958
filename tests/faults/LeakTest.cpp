#include <quorvel/AspGeneralSettingsFacade.h>

#include "faults/Opponent.h"
#include "support/BuiltGateway.h"
#include "support/Resources.h"
#include "support/Text.h"

namespace quorvel::test
{

namespace
{

/// A gateway that answers, and what a thousand uses of it leave behind.
class Leaks : public testing::Test
{
protected:
    Leaks() { opponent.behave(); }

    boost::shared_ptr<Cpe> build() const
    {
        return builtCpe(opponent.address(), {{"XML_VERSION", "1.0.1"},
                                             {"ADSL_VERSION", "1"},
                                             {"WAN_VERSION", "2"},
                                             {"WIRELESS_VERSION", "1"},
                                             {"WIRELESS_NG_VERSION", "1"},
                                             {"VOIP_VERSION", "2"},
                                             {"USBHOST_VERSION", "1"}});
    }

    static void read(const boost::shared_ptr<Cpe>& cpe)
    {
        AspWebAppErrorCodes error = AspWebAppNoError;
        EXPECT_EQ(AspGeneralSettingsFacade(cpe).getFirmwareVersion(error), text("1.2"));
    }

    /// Does it so many times before it looks, for what is taken once and for all, and then again.
    template <typename Work>
    static void expectNothingLeft(int warmUp, int number, Work work)
    {
        for (int i = 0; i < warmUp; ++i)
            work();
        const Resources before;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        // A sanitizer keeps what the program frees, and looks for leaks itself.
        for (int i = 0; i < number / 10; ++i)
            work();
#else
        const long kilobytes = residentKilobytes();
        for (int i = 0; i < number; ++i)
            work();
        EXPECT_LE(residentKilobytes() - kilobytes, 512);
#endif
        EXPECT_TRUE(before.areBack());
    }

    Opponent opponent{injected("hang")};
};

} // namespace

TEST_F(Leaks, TenThousandExchangesLeaveNothingBehind)
{
    const auto cpe = build();
    expectNothingLeft(1000, 10000, [&] { read(cpe); });
}

TEST_F(Leaks, AThousandGatewaysLeaveNothingBehind)
{
    expectNothingLeft(200, 1000, [this] { build(); });
}

TEST_F(Leaks, AThousandGatewaysInUseLeaveNothingBehind)
{
    expectNothingLeft(1000, 1000, [this] { read(build()); });
}

} // namespace quorvel::test
