#include "assembly/CpeBuilderDirector.h"

#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParserV2.h"
#include "support/RecognisedGateway.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

/// Notes the steps that it is asked for and fails at one of them.
class StepRecorder : public TelvoraCpeBuilderAspV1
{
public:
    explicit StepRecorder(const QString& failing = QString()) : failing(failing) {}

    bool buildResponseParser() override
    {
        return note("buildResponseParser") && TelvoraCpeBuilderAspV1::buildResponseParser();
    }
    bool buildRequestFormatter() override
    {
        return note("buildRequestFormatter") && TelvoraCpeBuilderAspV1::buildRequestFormatter();
    }
    bool buildRequestExecutor() override
    {
        return note("buildRequestExecutor") && TelvoraCpeBuilderAspV1::buildRequestExecutor();
    }
    bool buildAuthenticator(const AuthenticationInfo& info) override
    {
        return note("buildAuthenticator") && TelvoraCpeBuilderAspV1::buildAuthenticator(info);
    }
    bool buildCpe(const ParamMap& parameters) override
    {
        return note("buildCpe") && TelvoraCpeBuilderAspV1::buildCpe(parameters);
    }
    bool buildSettingsImplementors() override
    {
        return note("buildSettingsImplementors") &&
               TelvoraCpeBuilderAspV1::buildSettingsImplementors();
    }

    QStringList steps;

private:
    bool note(const char* step)
    {
        steps.append(text(step));
        return steps.last() != failing;
    }

    const QString failing;
};

QStringList allSteps()
{
    return lines({"buildCpe", "buildSettingsImplementors", "buildRequestExecutor",
                  "buildRequestFormatter", "buildResponseParser", "buildAuthenticator"});
}

class CpeBuilderDirectorTest : public RecognisedGateway
{
protected:
    boost::shared_ptr<Cpe> build(boost::shared_ptr<CpeBuilder> builder)
    {
        CpeBuilderDirector director;
        return director.buildCpe(builder, info());
    }
};

} // namespace

TEST_F(CpeBuilderDirectorTest, RecognisesAndThenTakesTheStepsInOrder)
{
    scriptRecognition({text("devmgr")});
    const auto builder = boost::make_shared<StepRecorder>();
    const auto cpe = build(builder);
    ASSERT_TRUE(cpe);
    EXPECT_EQ(cpe, builder->getCpe());
    EXPECT_EQ(builder->steps, allSteps());
    EXPECT_EQ(log.lines().mid(5), lines({"DEBUG Building CPE...", "DEBUG CPE is built."}));
}

TEST_F(CpeBuilderDirectorTest, GivesTheCpeWhatRecognitionFound)
{
    scriptRecognition({text("devmgr"), text("voice")});
    const auto cpe = build(boost::make_shared<TelvoraCpeBuilderAspV1>());
    ASSERT_TRUE(cpe);
    EXPECT_EQ(entries(*cpe->getParameters()),
              lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_GENERAL_SETTINGS_VERSION=1",
                     "CPE_PARAM_VOIP_VERSION=2", "CPE_PARAM_XML_VERSION=1.0.1"}));
    const auto general = cpe->getGeneralImplementor();
    EXPECT_TRUE(boost::dynamic_pointer_cast<AspRequestFormatterV2>(general->getRequestFormatter()));
    EXPECT_TRUE(boost::dynamic_pointer_cast<AspResponseParserV2>(general->getResponseParser()));
    EXPECT_EQ(general->getCpeAddress(), gateway.address());
}

TEST_F(CpeBuilderDirectorTest, BuildsNothingIfRecognitionFails)
{
    gateway.refuseLogin();
    const auto builder = boost::make_shared<StepRecorder>();
    EXPECT_FALSE(build(builder));
    EXPECT_EQ(builder->steps, QStringList());
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "WARN Failed to log in."}));
}

TEST_F(CpeBuilderDirectorTest, StopsAtTheFirstStepThatFails)
{
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        log.clear();
        scriptRecognition({text("devmgr")});
        const auto builder = boost::make_shared<StepRecorder>(allSteps()[i]);
        EXPECT_FALSE(build(builder));
        EXPECT_EQ(builder->steps, allSteps().mid(0, i + 1));
        EXPECT_EQ(log.lines().mid(5),
                  lines({"DEBUG Building CPE...", "ERROR Failed to build CPE!"}));
    }
}

} // namespace quorvel::test
