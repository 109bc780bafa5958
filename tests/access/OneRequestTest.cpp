#include <quorvel/AspGeneralSettingsFacade.h>

#include "support/BuiltGateway.h"
#include "support/Text.h"

#include <ostream>

namespace quorvel::test
{

namespace
{

/// Bytes of a reply that breaks off.
struct Fragment {
    const char* name;
    const char* bytes;
};

void PrintTo(const Fragment& fragment, std::ostream* out)
{
    *out << fragment.name;
}

class BrokenReply : public BuiltGateway, public testing::WithParamInterface<Fragment>
{
protected:
    /// The gateway's script fails the test at a second request.
    void expectOneFailedRequest()
    {
        build({});
        AspGeneralSettingsFacade facade(cpe);
        AspWebAppErrorCodes error = AspWebAppNoError;
        EXPECT_EQ(facade.getFirmwareVersion(error), QString());
        EXPECT_EQ(static_cast<int>(error), 29);
        EXPECT_EQ(gateway.connections(), 1);
    }
};

} // namespace

TEST_P(BrokenReply, ThatIsClosedIsNotAskedForAgain)
{
    gateway.sendRaw(GetParam().bytes);
    expectOneFailedRequest();
}

TEST_P(BrokenReply, ThatIsResetIsNotAskedForAgain)
{
    gateway.sendAndReset(GetParam().bytes);
    expectOneFailedRequest();
}

INSTANTIATE_TEST_SUITE_P(AllFragments, BrokenReply,
                         testing::Values(Fragment{"Nothing", ""},
                                         Fragment{"PartOfStatusLine", "HTTP/1."},
                                         Fragment{"PartOfHeader", "HTTP/1.1 200 OK\r\nContent-Le"},
                                         Fragment{"Rubbish", "\x01\x02<?rubbish\xff\xfe\r\n\r\n"},
                                         Fragment{"OnlyInterim", "HTTP/1.1 100 Continue\r\n\r\n"}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvel::test
