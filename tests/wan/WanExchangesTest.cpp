#include "protocol/RequestExecutor.h"
#include "wan/WanFixture.h"
#include "wan/WanSettingsImplementor.h"

#include <boost/make_shared.hpp>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace quorvel::test
{

namespace
{

/// The operations that leave the common frame.
class WanExchanges : public BuiltGateway
{
protected:
    void SetUp() override
    {
        buildNewest();
        wan = cpe->getWanImplementor();
    }

    boost::shared_ptr<WanSettingsImplementor> wan;
    ParamMap result;
    QList<QString> dslWans{text("dsl before")};
    QList<QString> ethWans{text("eth before")};
};

const QString done = reply101({{"webapp", "error", "0"}});
const QString threeWans = reply101({{"devmgr-0", "wan0", "wan-0"},
                                    {"devmgr-0", "wan1", "wan-1"},
                                    {"devmgr-0", "wan2", "wan-7"},
                                    {"webapp", "error", "0"}});
const QString repeatedStatus = reply101({{"route-0", "def_gw_status", "wan-0:0"},
                                         {"route-0", "def_gw_status", "wan-1:1"},
                                         {"route-0", "def_gw_status", "wan-2:0"},
                                         {"webapp", "error", "0"}});

} // namespace

TEST_F(WanExchanges, NumberRepeatedStatusKeys)
{
    gateway.reply(repeatedStatus);
    EXPECT_TRUE(wan->getDefaultGwStatus(text("route-0"), result));
    EXPECT_EQ(result, (ParamMap{{text("response"), text("1.0.1")},
                                {text("route-0.def_gw_status"), text("wan-0:0")},
                                {text("route-0.def_gw_status2"), text("wan-1:1")},
                                {text("route-0.def_gw_status3"), text("wan-2:0")},
                                {text("webapp.error"), text("0")}}));
}

TEST_F(WanExchanges, RunTheCounterOnOverDifferentStatusKeys)
{
    gateway.reply(reply101({{"route-0", "a", "1"},
                            {"route-0", "a", "2"},
                            {"route-0", "b", "3"},
                            {"route-0", "b", "4"},
                            {"route-0", "b", "5"}}));
    EXPECT_TRUE(wan->getDefaultGwStatus(text("route-0"), result));
    EXPECT_EQ(result, (ParamMap{{text("response"), text("1.0.1")},
                                {text("route-0.a"), text("1")},
                                {text("route-0.a2"), text("2")},
                                {text("route-0.b"), text("3")},
                                {text("route-0.b3"), text("4")},
                                {text("route-0.b4"), text("5")}}));
}

TEST_F(WanExchanges, CountFromTwoAgainInTheNextStatusReply)
{
    gateway.reply(repeatedStatus).reply(repeatedStatus);
    EXPECT_TRUE(wan->getDefaultGwStatus(text("route-0"), result));
    ParamMap second;
    EXPECT_TRUE(wan->getDefaultGwStatus(text("route-0"), second));
    EXPECT_EQ(second, result);
}

TEST_F(WanExchanges, PutTheUsualParserBackAfterAStatusReply)
{
    const auto usual = wan->getResponseParser();
    gateway.reply(repeatedStatus).reply(repeatedStatus);
    EXPECT_TRUE(wan->getDefaultGwStatus(text("route-0"), result));
    EXPECT_EQ(wan->getResponseParser(), usual);
    ParamMap unnumbered;
    EXPECT_TRUE(wan->getDefaultWan(text("route-0"), unnumbered));
    EXPECT_EQ(unnumbered, (ParamMap{{text("response"), text("1.0.1")},
                                    {text("route-0.def_gw_status"), text("wan-2:0")},
                                    {text("webapp.error"), text("0")}}));
}

TEST_F(WanExchanges, PutTheUsualParserBackAfterAFailedStatusRequest)
{
    const auto usual = wan->getResponseParser();
    gateway.sendRaw(notFound).reply(repeatedStatus);
    EXPECT_FALSE(wan->getDefaultGwStatus(text("route-0"), result));
    EXPECT_EQ(result.value(text("webapp.error")), text("29"));
    EXPECT_EQ(wan->getResponseParser(), usual);
    ParamMap unnumbered;
    EXPECT_TRUE(wan->getDefaultWan(text("route-0"), unnumbered));
    EXPECT_FALSE(unnumbered.contains(text("route-0.def_gw_status2")));
}

TEST_F(WanExchanges, PutTheUsualParserBackAfterAnUnreadableStatusReply)
{
    const auto usual = wan->getResponseParser();
    gateway.reply(text("<response>"));
    EXPECT_FALSE(wan->getDefaultGwStatus(text("route-0"), result));
    EXPECT_EQ(result, (ParamMap{{text("AUTH_PARAM_LOGINRESULT"), text("1")}}));
    EXPECT_EQ(wan->getResponseParser(), usual);
}

TEST_F(WanExchanges, NumberRepeatedStatusKeysAlsoBehindAnExpiredSession)
{
    gateway.reply(reply101({{"webapp", "error", "1"}})).logIn("SID=2").reply(repeatedStatus);
    EXPECT_TRUE(wan->getDefaultGwStatus(text("route-0"), result));
    EXPECT_EQ(result.value(text("route-0.def_gw_status3")), text("wan-2:0"));
}

TEST_F(WanExchanges, ReadAStatusReplyOfTheOlderDialectWithTheSameParser)
{
    build({{"XML_VERSION", "1.0.0"}, {"WAN_VERSION", "1"}});
    gateway.reply(reply100({{"route-0", "def_gw_status", "wan-0:0"}}));
    EXPECT_TRUE(cpe->getWanImplementor()->getDefaultGwStatus(text("route-0"), result));
    EXPECT_EQ(result, (ParamMap{{text("response"), text("1.0.0")},
                                {text("route-0.def_gw_status"), text("wan-0:0")}}));
}

TEST_F(WanExchanges, SortWansByTheirLayer2InWhateverCase)
{
    gateway.reply(threeWans).reply(reply101({{"wan-0", "l2type", "ETH"},
                                             {"wan-1", "l2type", "Dsl"},
                                             {"wan-7", "l2type", "eth"},
                                             {"webapp", "error", "0"}}));
    EXPECT_TRUE(wan->getWanDslList(dslWans, ethWans, result));
    EXPECT_EQ(dslWans, (QList<QString>{text("dsl before"), text("wan-1")}));
    EXPECT_EQ(ethWans, (QList<QString>{text("eth before"), text("wan-0"), text("wan-7")}));
    EXPECT_TRUE(matchesGolden(text("wan/getWanDslList"), transcript(gateway)));
    EXPECT_EQ(result.value(text("devmgr-0.wan2")), text("wan-7"));
    EXPECT_EQ(result.value(text("wan-0.l2type")), text("ETH"));
}

TEST_F(WanExchanges, LeaveWansOfOtherLayersOutOfBothLists)
{
    gateway.reply(threeWans).reply(
        reply101({{"wan-0", "l2type", "serial"}, {"wan-1", "l2type", ""}}));
    EXPECT_TRUE(wan->getWanDslList(dslWans, ethWans, result));
    EXPECT_EQ(dslWans, QList<QString>{text("dsl before")});
    EXPECT_EQ(ethWans, QList<QString>{text("eth before")});
}

TEST_F(WanExchanges, ListNothingAndAskForNothingWithoutWans)
{
    gateway.reply(done).reply(done);
    EXPECT_TRUE(wan->getWanDslList(dslWans, ethWans, result));
    EXPECT_EQ(dslWans, QList<QString>{text("dsl before")});
    EXPECT_EQ(ethWans, QList<QString>{text("eth before")});
    EXPECT_TRUE(matchesGolden(text("wan/getWanDslListWithoutWans"), transcript(gateway)));
}

TEST_F(WanExchanges, SkipGapsInTheNumberingButStopAtTheNumberOfEntries)
{
    // Four entries with the version and the error, so the numbers 0 to 3 are looked at.
    gateway
        .reply(reply101({{"devmgr-0", "wan3", "wan-3"},
                         {"devmgr-0", "wan4", "wan-4"},
                         {"webapp", "error", "0"}}))
        .reply(reply101({{"wan-3", "l2type", "dsl"}, {"wan-4", "l2type", "dsl"}}));
    EXPECT_TRUE(wan->getWanDslList(dslWans, ethWans, result));
    EXPECT_EQ(dslWans, (QList<QString>{text("dsl before"), text("wan-3")}));
}

TEST_F(WanExchanges, LeaveTheListsAloneIfTheInstancesCannotBeListed)
{
    gateway.sendRaw(notFound);
    EXPECT_FALSE(wan->getWanDslList(dslWans, ethWans, result));
    EXPECT_EQ(gateway.connections(), 1);
    EXPECT_EQ(dslWans, QList<QString>{text("dsl before")});
    EXPECT_EQ(ethWans, QList<QString>{text("eth before")});
}

TEST_F(WanExchanges, LeaveTheListsAloneIfTheLayersCannotBeRead)
{
    gateway.reply(threeWans).sendRaw(notFound);
    EXPECT_FALSE(wan->getWanDslList(dslWans, ethWans, result));
    EXPECT_EQ(dslWans, QList<QString>{text("dsl before")});
    EXPECT_EQ(ethWans, QList<QString>{text("eth before")});
    EXPECT_EQ(result.value(text("webapp.error")), text("29"));
}

TEST_F(WanExchanges, FindTheFirstSerialWanInWhateverCase)
{
    gateway.reply(threeWans).reply(reply101({{"wan-0", "l2type", "eth"},
                                             {"wan-1", "l2type", "SERIAL"},
                                             {"wan-7", "l2type", "serial"}}));
    QString modem;
    EXPECT_TRUE(wan->get3GWan(modem, result));
    EXPECT_EQ(modem, text("wan-1"));
    EXPECT_TRUE(matchesGolden(text("wan/get3GWan"), transcript(gateway)));
}

TEST_F(WanExchanges, FindNoSerialWanAndSucceedAllTheSame)
{
    gateway.reply(threeWans).reply(reply101({{"wan-0", "l2type", "eth"}}));
    QString modem;
    EXPECT_TRUE(wan->get3GWan(modem, result));
    EXPECT_EQ(modem, QString());
}

TEST_F(WanExchanges, FindNoSerialWanIfEitherExchangeFails)
{
    gateway.sendRaw(notFound).reply(threeWans).sendRaw(notFound);
    QString modem = text("before");
    EXPECT_FALSE(wan->get3GWan(modem, result));
    EXPECT_EQ(gateway.connections(), 1);
    EXPECT_FALSE(wan->get3GWan(modem, result));
    EXPECT_EQ(modem, text("before"));
}

TEST_F(WanExchanges, CreateAnEntityThenAddItToTheWan)
{
    gateway.reply(reply101({{"devmgr-0", "create_inst.pvc", "pvc-4"}, {"webapp", "error", "0"}}))
        .reply(done);
    EXPECT_TRUE(wan->addEntity(text("wan-3"), text("pvc"), result));
    EXPECT_TRUE(matchesGolden(text("wan/addEntity"), transcript(gateway)));
    EXPECT_EQ(result.value(text("devmgr-0.create_inst.pvc")), text("pvc-4"));
}

TEST_F(WanExchanges, AddAnEntityWithoutANameIfNoneWasCreated)
{
    gateway.reply(done).reply(done);
    EXPECT_TRUE(wan->addEntity(text("wan-3"), text("pvc"), result));
    EXPECT_TRUE(matchesGolden(text("wan/addEntityWithoutInstance"), transcript(gateway)));
}

TEST_F(WanExchanges, AddNoEntityIfTheCreationFails)
{
    gateway.sendRaw(notFound);
    EXPECT_FALSE(wan->addEntity(text("wan-3"), text("pvc"), result));
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(WanExchanges, KeepTheCreatedEntitysNameIfAddingItFails)
{
    gateway.reply(reply101({{"devmgr-0", "create_inst.pvc", "pvc-4"}})).sendRaw(notFound);
    EXPECT_FALSE(wan->addEntity(text("wan-3"), text("pvc"), result));
    EXPECT_EQ(result, (ParamMap{{text("AUTH_PARAM_LOGINRESULT"), text("3")},
                                {text("devmgr-0.create_inst.pvc"), text("pvc-4")},
                                {text("response"), text("1.0.1")},
                                {text("webapp.error"), text("29")}}));
}

TEST_F(WanExchanges, LookUpAnEntityThenDeleteIt)
{
    gateway.reply(reply101({{"wan-3", "entities.pvc", "pvc-4"}, {"wan-3", "enabled", "1"}}))
        .reply(done);
    EXPECT_TRUE(wan->deleteEntity(text("wan-3"), text("pvc"), result));
    EXPECT_TRUE(matchesGolden(text("wan/deleteEntity"), transcript(gateway)));
    EXPECT_EQ(result,
              (ParamMap{{text("response"), text("1.0.1")}, {text("webapp.error"), text("0")}}));
}

TEST_F(WanExchanges, DeleteAnEntityWithoutANameIfTheWanHasNone)
{
    gateway.reply(done).reply(done);
    EXPECT_TRUE(wan->deleteEntity(text("wan-3"), text("pvc"), result));
    EXPECT_TRUE(matchesGolden(text("wan/deleteEntityWithoutInstance"), transcript(gateway)));
}

TEST_F(WanExchanges, DeleteNoEntityAndLeaveNoTraceIfTheLookUpFails)
{
    gateway.sendRaw(notFound);
    EXPECT_FALSE(wan->deleteEntity(text("wan-3"), text("pvc"), result));
    EXPECT_EQ(gateway.connections(), 1);
    EXPECT_EQ(result, ParamMap());
}

TEST_F(WanExchanges, ReportAFailedDeletion)
{
    gateway.reply(reply101({{"wan-3", "entities.pvc", "pvc-4"}})).sendRaw(notFound);
    EXPECT_FALSE(wan->deleteEntity(text("wan-3"), text("pvc"), result));
    EXPECT_EQ(result, (ParamMap{{text("AUTH_PARAM_LOGINRESULT"), text("3")},
                                {text("webapp.error"), text("29")}}));
}

namespace
{

/// Answers every request and tells of each before it does.
class TellingExecutor : public RequestExecutor
{
public:
    explicit TellingExecutor(std::function<void(const QString& request)> tell) : tell(tell) {}

    int execute(const ParamMap& params, ParamMap& result) override
    {
        tell(params.value(text("HTTP_PARAM_DATA_TO_SEND")));
        result = {{text("REQUEST_EXEC_PARAM_RESULT"), done}};
        return 0;
    }

    void abortPendingRequests() override {}

private:
    std::function<void(const QString& request)> tell;
};

} // namespace

TEST_F(WanExchanges, LetNobodyComeBetweenTheTwoOfOneOperation)
{
    std::mutex guard;
    std::condition_variable changed;
    QStringList order;
    std::thread intruder;
    wan->setRequestExecutor(boost::make_shared<TellingExecutor>([&](const QString& request) {
        std::unique_lock<std::mutex> lock(guard);
        const bool first = order.isEmpty();
        order.append(request.contains(text("create_inst"))  ? text("create")
                     : request.contains(text("start_inst")) ? text("add")
                                                            : text("intrude"));
        changed.notify_all();
        if (!first)
            return;
        intruder = std::thread([&] {
            ParamMap reply;
            wan->enableWan(text("wan-1"), reply);
        });
        // Gives the intruder the time that it would need to come between.
        changed.wait_for(lock, std::chrono::milliseconds(200), [&] { return order.size() > 1; });
    }));
    EXPECT_TRUE(wan->addEntity(text("wan-3"), text("pvc"), result));
    intruder.join();
    EXPECT_EQ(order, (QStringList{text("create"), text("add"), text("intrude")}));
}

} // namespace quorvel::test
