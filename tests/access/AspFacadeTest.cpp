#include <quorvel/AspFacade.h>

#include "assembly/Cpe.h"
#include "general/AspGeneralSettingsImplV1.h"
#include "support/LogCapture.h"
#include "support/Text.h"

#include <boost/make_shared.hpp>
#include <boost/weak_ptr.hpp>
#include <gtest/gtest.h>
#include <ostream>

namespace quorvel::test
{

namespace
{

class OpenFacade : public AspFacade
{
public:
    using AspFacade::AspFacade;
    using AspFacade::cpe;
    using AspFacade::getErrorCode;
    using AspFacade::validateCpe;
};

/// What a reply's status entries mean; null for an entry that it lacks.
struct Verdict {
    const char* name;
    const char* loginResult;
    const char* webappError;
    int code;
};

void PrintTo(const Verdict& verdict, std::ostream* out)
{
    *out << verdict.name;
}

class ErrorCode : public testing::TestWithParam<Verdict>
{
};

boost::shared_ptr<Cpe> cpeWithGeneralSettings()
{
    const auto cpe = boost::make_shared<Cpe>();
    cpe->setGeneralImplementor(boost::make_shared<AspGeneralSettingsImplV1>());
    return cpe;
}

} // namespace

TEST_P(ErrorCode, FollowsFromTheStatusEntries)
{
    ParamMap reply{{text("response"), text("1.0.1")}};
    if (GetParam().loginResult)
        reply.insert(text("AUTH_PARAM_LOGINRESULT"), text(GetParam().loginResult));
    if (GetParam().webappError)
        reply.insert(text("webapp.error"), text(GetParam().webappError));
    LogCapture log;
    OpenFacade facade{boost::shared_ptr<Cpe>()};
    EXPECT_EQ(static_cast<int>(facade.getErrorCode(reply)), GetParam().code);
    EXPECT_EQ(log.lines(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    AllVerdicts, ErrorCode,
    testing::Values(
        Verdict{"NoStatus", nullptr, nullptr, 0}, Verdict{"NoError", nullptr, "0", 0},
        Verdict{"LoggedIn", "0", nullptr, 0}, Verdict{"LoggedInWithGatewaysCode", "0", "7", 7},
        Verdict{"LoginRefused", "1", nullptr, 25},
        Verdict{"LoginRefusedWithGatewaysCode", "1", "7", 25},
        Verdict{"LoginRefusedWithLeadingZero", "01", nullptr, 25},
        Verdict{"LoginTimedOut", "2", nullptr, 0}, Verdict{"LoginFailed", "3", nullptr, 0},
        Verdict{"RequestTimedOut", "2", "28", 28}, Verdict{"RequestFailed", "3", "29", 29},
        Verdict{"LoginResultIsNoNumber", "x", "29", 29}, Verdict{"LoginResultIsEmpty", "", "5", 5},
        Verdict{"SessionExpired", nullptr, "1", 1},
        Verdict{"SessionExpiredWithLeadingZero", nullptr, "01", 1},
        Verdict{"Code2", nullptr, "2", 2}, Verdict{"Code18", nullptr, "18", 18},
        Verdict{"Code19IsNone", nullptr, "19", 0},
        Verdict{"Code19WithLeadingZeroIsNone", nullptr, "019", 0},
        Verdict{"Code20", nullptr, "20", 20}, Verdict{"Code24", nullptr, "24", 24},
        Verdict{"Code25OfTheGateway", nullptr, "25", 25}, Verdict{"Code30", nullptr, "30", 30},
        Verdict{"LargestCode", nullptr, "2147483647", 2147483647},
        Verdict{"NegativeCode", nullptr, "-3", -3}, Verdict{"CodeIsNoNumber", nullptr, "abc", 0},
        Verdict{"CodeIsHexadecimal", nullptr, "0x12", 0},
        Verdict{"CodeIsTooLarge", nullptr, "2147483648", 0},
        Verdict{"CodeIsEmpty", nullptr, "", 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ErrorCodes, HaveTheirNumbers)
{
    EXPECT_EQ(AspWebAppNoError, 0);
    EXPECT_EQ(AspWebAppSessionExpired, 1);
    EXPECT_EQ(AspWebAppDeviceStatus19, 19);
    EXPECT_EQ(AspWebAppLoginFailed, 25);
    EXPECT_EQ(AspWebAppCpeNull, 26);
    EXPECT_EQ(AspWebAppCpeNotBuilt, 27);
    EXPECT_EQ(AspWebAppRequestTimedOut, 28);
    EXPECT_EQ(AspWebAppRequestFailed, 29);
    EXPECT_EQ(sizeof(AspWebAppErrorCodes), 4u);
}

TEST(AspFacade, WithoutCpeIsNotValid)
{
    LogCapture log;
    OpenFacade facade{boost::shared_ptr<Cpe>()};
    EXPECT_EQ(static_cast<int>(facade.validateCpe()), 26);
    EXPECT_EQ(log.lines(), lines({"ERROR AspFacade::validateCpe -> Cpe is null!"}));
}

TEST(AspFacade, OnACpeWithoutGeneralSettingsIsNotValid)
{
    LogCapture log;
    OpenFacade facade{boost::make_shared<Cpe>()};
    EXPECT_EQ(static_cast<int>(facade.validateCpe()), 27);
    EXPECT_EQ(log.lines(), lines({"ERROR AspFacade::validateCpe -> Cpe::not correctly build!"}));
}

TEST(AspFacade, OnACpeWithGeneralSettingsAloneIsValid)
{
    LogCapture log;
    OpenFacade facade{cpeWithGeneralSettings()};
    EXPECT_EQ(static_cast<int>(facade.validateCpe()), 0);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST(AspFacade, SharesItsCpeWithCopies)
{
    OpenFacade facade{cpeWithGeneralSettings()};
    OpenFacade copy{facade};
    EXPECT_EQ(copy.cpe, facade.cpe);
    OpenFacade assigned{boost::shared_ptr<Cpe>()};
    assigned = facade;
    EXPECT_EQ(assigned.cpe, facade.cpe);
    EXPECT_EQ(facade.cpe.use_count(), 3);
}

TEST(AspFacade, KeepsItsCpeAliveUntilItGoes)
{
    auto cpe = cpeWithGeneralSettings();
    const boost::weak_ptr<Cpe> watched = cpe;
    auto facade = boost::make_shared<OpenFacade>(cpe);
    cpe.reset();
    EXPECT_FALSE(watched.expired());
    facade.reset();
    EXPECT_TRUE(watched.expired());
}

} // namespace quorvel::test
