#include "assembly/CpeBuilderFactory.h"
#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "general/AspGeneralSettingsImplV1.h"
#include "internet/AdslSettingsImplementor.h"
#include "protocol/AspRequestFormatterV1.h"
#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParserV1.h"
#include "protocol/AspResponseParserV2.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"
#include "support/OneInstance.h"
#include "support/Text.h"
#include "usbhost/UsbHostSettingsImplementor.h"
#include "voice/VoipSettingsImplementor.h"
#include "wan/AspWanSettingsImplementorV1.h"
#include "wan/AspWanSettingsImplementorV2.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <QSet>
#include <ostream>

namespace quorvel::test
{

namespace
{

using Builder = TelvoraCpeBuilderAspV1;

/// A step, and its complaints about what is missing.
struct Step {
    const char* name;
    std::function<bool(Builder&)> run;
    const char* withoutParameters; ///< null if the step needs none
    const char* withoutCpe;
};

void PrintTo(const Step& step, std::ostream* out)
{
    *out << step.name;
}

class CpeBuilderStep : public testing::TestWithParam<Step>
{
protected:
    LogCapture log;
    Builder builder;
};

template <typename Part, typename Object>
bool isA(const boost::shared_ptr<Object>& object)
{
    return dynamic_cast<Part*>(object.get()) != nullptr;
}

class CpeBuilderTest : public BuiltGateway
{
protected:
    /// All implementors that the gateway has.
    QList<boost::shared_ptr<CpeSettingsImplementor>> implementors() const
    {
        QList<boost::shared_ptr<CpeSettingsImplementor>> all{
            cpe->getAdslImplementor(),       cpe->getWirelessImplementor(),
            cpe->getWirelessImplementorNG(), cpe->getVoipImplementor(),
            cpe->getGeneralImplementor(),    cpe->getWanImplementor(),
            cpe->getUsbHostImplementor()};
        all.removeAll(nullptr);
        return all;
    }

    template <typename Formatter, typename Parser>
    void expectDialect()
    {
        EXPECT_TRUE(cpe->getGeneralImplementor() && cpe->getWanImplementor());
        for (const auto& implementor : implementors()) {
            EXPECT_TRUE(isA<Formatter>(implementor->getRequestFormatter()));
            EXPECT_TRUE(isA<Parser>(implementor->getResponseParser()));
        }
    }
};

} // namespace

TEST_P(CpeBuilderStep, FailsWithoutCpe)
{
    EXPECT_FALSE(GetParam().run(builder));
    EXPECT_EQ(log.lines(), QStringList(text("ERROR ") + text(GetParam().withoutCpe)));
    EXPECT_FALSE(builder.getCpe());
}

TEST_P(CpeBuilderStep, FailsWithoutParametersIfItNeedsThem)
{
    EXPECT_TRUE(builder.buildCpe({}));
    builder.getCpe()->setParameters(boost::shared_ptr<ParamMap>());
    const char* complaint = GetParam().withoutParameters;
    EXPECT_EQ(GetParam().run(builder), complaint == nullptr);
    EXPECT_EQ(log.lines(),
              complaint ? QStringList(text("ERROR ") + text(complaint)) : QStringList());
}

TEST_P(CpeBuilderStep, SucceedsSilentlyOnAGatewayWithoutFunctions)
{
    EXPECT_TRUE(builder.buildCpe({}));
    EXPECT_TRUE(GetParam().run(builder));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_FALSE(builder.getCpe()->getGeneralImplementor());
}

INSTANTIATE_TEST_SUITE_P(
    AllSteps, CpeBuilderStep,
    testing::Values(
        Step{"buildResponseParser", [](Builder& b) { return b.buildResponseParser(); },
             "TelvoraCpeBuilderAspV1::buildResponseParser - No cpe parameter found. You have to "
             "build cpe parameters firstly...",
             "TelvoraCpeBuilderAspV1::buildResponseParser - No cpe found...You have to build cpe "
             "firstly..."},
        Step{"buildRequestFormatter", [](Builder& b) { return b.buildRequestFormatter(); },
             "TelvoraCpeBuilderAspV1::buildRequestFormatter - No cpe parameter found. You have to "
             "build cpe parameters firstly...",
             "TelvoraCpeBuilderAspV1::buildRequestFormatter - No cpe found...You have to build cpe "
             "firstly..."},
        Step{"buildSettingsImplementors", [](Builder& b) { return b.buildSettingsImplementors(); },
             "TelvoraCpeBuilderAspV1::buildSettingsImplementors - No cpe parameter found. You have "
             "to build cpe parameters firstly...",
             "TelvoraCpeBuilderAspV1::buildSettingsImplementors - No cpe found...You have to build "
             "cpe firstly..."},
        Step{"buildAuthenticator", [](Builder& b) { return b.buildAuthenticator({}); },
             "No cpe parameter found. You have to build cpe parameters firstly...",
             "No cpe found. You have to build cpe firstly..."},
        Step{"buildRequestExecutor", [](Builder& b) { return b.buildRequestExecutor(); }, nullptr,
             "No cpe found. You have to build cpe firstly..."}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CpeBuilderTest, KeepsACopyOfTheParameters)
{
    Builder builder;
    ParamMap parameters{{text("a"), text("1")}};
    EXPECT_TRUE(builder.buildCpe(parameters));
    parameters.clear();
    EXPECT_EQ(entries(*builder.getCpe()->getParameters()), lines({"a=1"}));
}

TEST_F(CpeBuilderTest, MakesGeneralSettingsWhateverTheirVersion)
{
    for (const QString& version : lines({"1", "0", ""})) {
        Builder builder;
        builder.buildCpe({{text("CPE_PARAM_GENERAL_SETTINGS_VERSION"), version}});
        EXPECT_TRUE(builder.buildSettingsImplementors());
        EXPECT_TRUE(isA<AspGeneralSettingsImplV1>(builder.getCpe()->getGeneralImplementor()));
        EXPECT_FALSE(builder.getCpe()->getWanImplementor());
    }
}

TEST_F(CpeBuilderTest, MakesTheOlderWanModelForVersion1)
{
    build({{"WAN_VERSION", "1"}});
    EXPECT_TRUE(isA<AspWanSettingsImplementorV1>(cpe->getWanImplementor()));
}

TEST_F(CpeBuilderTest, MakesTheNewerWanModelForAnyOtherVersion)
{
    for (const char* version : {"2", "3", ""}) {
        build({{"WAN_VERSION", version}});
        EXPECT_TRUE(isA<AspWanSettingsImplementorV2>(cpe->getWanImplementor()));
    }
}

TEST_F(CpeBuilderTest, MakesNothingThatTheGatewayLacks)
{
    build({});
    EXPECT_FALSE(cpe->getAdslImplementor());
    EXPECT_FALSE(cpe->getWirelessImplementor());
    EXPECT_FALSE(cpe->getWirelessImplementorNG());
    EXPECT_FALSE(cpe->getVoipImplementor());
    EXPECT_FALSE(cpe->getWanImplementor());
    EXPECT_FALSE(cpe->getUsbHostImplementor());
}

TEST_F(CpeBuilderTest, SpeaksTheOlderDialectWithVersion100)
{
    build({{"XML_VERSION", "1.0.0"}, {"WAN_VERSION", "1"}});
    expectDialect<AspRequestFormatterV1, AspResponseParserV1>();
}

TEST_F(CpeBuilderTest, SpeaksTheOlderDialectWithoutAVersion)
{
    build({{"WAN_VERSION", "1"}});
    expectDialect<AspRequestFormatterV1, AspResponseParserV1>();
}

TEST_F(CpeBuilderTest, SpeaksTheNewerDialectWithAnyOtherVersion)
{
    for (const char* version : {"1.0.1", "1.0", ""}) {
        build({{"XML_VERSION", version}, {"WAN_VERSION", "1"}});
        expectDialect<AspRequestFormatterV2, AspResponseParserV2>();
    }
}

TEST_F(CpeBuilderTest, GivesEachImplementorPartsOfItsOwnAndAllOneAuthenticator)
{
    buildNewest();
    QSet<const void*> parts;
    QSet<const void*> authenticators;
    for (const auto& implementor : implementors()) {
        EXPECT_TRUE(isA<HttpRequestExecutor>(implementor->getRequestExecutor()));
        parts << implementor->getRequestExecutor().get() << implementor->getRequestFormatter().get()
              << implementor->getResponseParser().get();
        authenticators << implementor->getAuthenticator().get();
    }
    EXPECT_EQ(implementors().size(), 7);
    EXPECT_EQ(parts.size(), 3 * 7);
    EXPECT_EQ(authenticators.size(), 1);
}

TEST_F(CpeBuilderTest, GivesTheAuthenticatorAddressAndCredentials)
{
    build({});
    const auto authenticator = cpe->getGeneralImplementor()->getAuthenticator();
    EXPECT_EQ(authenticator->getCpeAddress(), gateway.address());
    EXPECT_EQ(authenticator->getUser(), text("admin"));
    EXPECT_EQ(authenticator->getPassword(), text("secret"));
}

TEST(CpeBuilderFactory, HasNoBuilderOfType1)
{
    EXPECT_FALSE(CpeBuilderFactory::getInstance()->createBuilder(1));
}

TEST(CpeBuilderFactory, MakesANewBuilderForEveryOtherType)
{
    const auto factory = CpeBuilderFactory::getInstance();
    QSet<CpeBuilder*> builders;
    QList<boost::shared_ptr<CpeBuilder>> kept;
    for (int type : {0, 0, 2, -1}) {
        kept.append(factory->createBuilder(type));
        EXPECT_TRUE(isA<TelvoraCpeBuilderAspV1>(kept.last()));
        EXPECT_FALSE(kept.last()->getCpe());
        EXPECT_TRUE(kept.last()->buildCpe({}));
        builders.insert(kept.last().get());
    }
    EXPECT_EQ(builders.size(), 4);
}

TEST(CpeBuilderFactory, IsOneForAllThreads)
{
    expectOneInstanceForAllThreads<CpeBuilderFactory>();
}

} // namespace quorvel::test
