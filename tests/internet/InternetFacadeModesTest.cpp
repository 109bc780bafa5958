#include "internet/AspAdslImplementorV1.h"
#include "internet/InternetFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

/// An implementor whose requests succeed with an empty reply.
class SilentImplementor : public AspAdslImplementorV1
{
public:
    bool executeRequest(const QString&, ParamMap&, bool) override { return true; }
};

class SilentGateway : public InternetFacade
{
protected:
    void SetUp() override
    {
        InternetFacade::SetUp();
        const auto silent = boost::make_shared<SilentImplementor>();
        silent->setRequestFormatter(cpe->getAdslImplementor()->getRequestFormatter());
        cpe->setAdslImplementor(silent);
    }
};

} // namespace

TEST_F(InternetFacade, ReadsTheSupportedAnnexesInAnyCase)
{
    const struct {
        const char* word;
        int annex;
    } cases[] = {{"a", 0},  {"A", 0}, {"b", 1},  {"B", 1}, {"ab", 2}, {"AB", 2},
                 {"Ab", 2}, {"", 3},  {"ba", 3}, {"m", 3}, {" a", 3}, {"0", 3}};
    for (const auto& [word, annex] : cases) {
        log.clear();
        gateway.reply(reply101({{"dsl-1", "annexes", word}, {"webapp", "error", "0"}}));
        EXPECT_EQ(facade.getSupportedAnnexMode(text("dsl-1"), error), annex) << word;
        EXPECT_EQ(error, 0);
        EXPECT_EQ(
            ownLines(),
            QStringList{text("DEBUG AspAdslSettingsFacade::getSupportedAnnexMode -> Annex mode is "
                             "fetched:\tInstance:dsl-1\tSupported Mode:") +
                        text(word)});
    }
}

TEST_F(InternetFacade, ReadsTheCurrentAnnexAndLogsItWithBlanks)
{
    gateway.reply(
        reply101({{"dsl-1", "annex", "B"}, {"dsl-1", "annexes", "AB"}, {"webapp", "error", "0"}}));
    EXPECT_EQ(facade.getCurrentAnnexMode(text("dsl-1"), error), 1);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), lines({"DEBUG AspAdslSettingsFacade::getCurrentAnnexMode -> Annex mode "
                                 "is fetched:\tInstance: dsl-1\tCurrent Mode: B"}));
}

TEST_F(InternetFacade, TakesAKnownAnnexForSuccessWhateverTheGatewayReports)
{
    gateway.reply(reply101({{"dsl-1", "annexes", "ab"}, {"webapp", "error", "7"}}))
        .reply(reply101({{"dsl-1", "annex", "a"}, {"webapp", "error", "7"}}));
    EXPECT_EQ(facade.getSupportedAnnexMode(text("dsl-1"), error), 2);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(facade.getCurrentAnnexMode(text("dsl-1"), error), 0);
    EXPECT_EQ(error, 0);
}

TEST_F(InternetFacade, ReportsTheGatewaysErrorBesideAnUnknownAnnex)
{
    gateway.reply(reply101({{"dsl-1", "annexes", "abc"}, {"webapp", "error", "7"}}))
        .reply(reply101({{"dsl-1", "annexes", "ab"}, {"webapp", "error", "8"}}));
    EXPECT_EQ(facade.getSupportedAnnexMode(text("dsl-1"), error), 3);
    EXPECT_EQ(error, 7);
    EXPECT_EQ(facade.getCurrentAnnexMode(text("dsl-1"), error), 3);
    EXPECT_EQ(error, 8);
}

TEST_F(InternetFacade, ReadsTheEncapsulationInAnyCase)
{
    const struct {
        const char* word;
        int encapsulation;
    } cases[] = {{"llc", 0}, {"LLC", 0}, {"vcmux", 1}, {"VcMux", 1}, {"", 2}, {"vc", 2}};
    for (const auto& [word, encapsulation] : cases) {
        log.clear();
        gateway.reply(reply101({{"rfc2684-2", "encaps", word}, {"webapp", "error", "7"}}));
        EXPECT_EQ(facade.getRfc2684Encapsulation(text("rfc2684-2"), error), encapsulation) << word;
        // What the gateway reports beside it isn't looked at.
        EXPECT_EQ(error, 0);
        EXPECT_EQ(ownLines(),
                  QStringList{text("DEBUG AspAdslSettingsFacade::getRfc2684Encapsulation -> "
                                   "Encapsulation:") +
                              text(word)});
    }
}

TEST_F(InternetFacade, DoesNotReadTheVdslSupportThatGatewaysReport)
{
    gateway.reply(reply101({{"rfc2684-0", "vdsl_support", "true"}, {"webapp", "error", "7"}}));
    EXPECT_FALSE(facade.getRfc2684VdslSupport(text("rfc2684-0"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspAdslSettingsFacade::getRfc2684VdslSupport -> VdslSupport:false"}));
}

TEST_F(InternetFacade, ReadsVdslSupportUnderItsBareName)
{
    const struct {
        const char* word;
        bool supported;
    } cases[] = {{"true", true}, {"false", false}, {"True", false}, {"1", false}, {"", false}};
    for (const auto& [word, supported] : cases) {
        log.clear();
        // The only entry without an instance in front is the one of the reply itself.
        gateway.reply(text("<vdsl_support version=\"%1\"/>").arg(text(word)));
        EXPECT_EQ(facade.getRfc2684VdslSupport(text("rfc2684-0"), error), supported) << word;
        EXPECT_EQ(error, 0);
        EXPECT_EQ(ownLines(), QStringList{text("DEBUG AspAdslSettingsFacade::"
                                               "getRfc2684VdslSupport -> VdslSupport:") +
                                          text(word)});
    }
}

TEST_F(SilentGateway, GivesTheDefaultsAndLogsNothingOfAnEmptyReply)
{
    EXPECT_EQ(facade.getRfc2684Encapsulation(text("rfc2684-2"), error), 2);
    EXPECT_EQ(error, 0);
    error = static_cast<AspWebAppErrorCodes>(77);
    EXPECT_FALSE(facade.getRfc2684VdslSupport(text("rfc2684-0"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), lines({}));
}

TEST(AspAnnexMode, HasTheValuesThatHostsStore)
{
    EXPECT_EQ(AspAnnexA, 0);
    EXPECT_EQ(AspAnnexB, 1);
    EXPECT_EQ(AspAnnexAB, 2);
    EXPECT_EQ(AspAnnexUnknown, 3);
    EXPECT_EQ(sizeof(AspAnnexMode), 4u);
}

TEST(AspRfc2684Encapsulation, HasTheValuesThatHostsStore)
{
    EXPECT_EQ(AspRfc2684Llc, 0);
    EXPECT_EQ(AspRfc2684VcMux, 1);
    EXPECT_EQ(AspRfc2684Unknown, 2);
    EXPECT_EQ(sizeof(AspRfc2684Encapsulation), 4u);
}

} // namespace quorvel::test
