#include "protocol/AspRequestFormatterV2.h"
#include "protocol/HttpRequestExecutor.h"
#include "wireless/AspWirelessImplementorNG.h"
#include "wireless/AspWirelessImplementorV1.h"
#include "wireless/WirelessCases.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

class WirelessRequest : public BuiltGateway, public testing::WithParamInterface<WirelessCase>
{
protected:
    void SetUp() override
    {
        buildNewest();
        gateway.reply(reply101({{"webapp", "error", "0"}}));
    }

    void compare(boost::shared_ptr<WirelessSettingsImplementor> radio, const char* folder)
    {
        EXPECT_TRUE(GetParam().operation(*radio, result));
        EXPECT_TRUE(matchesGolden(text(folder) + text(GetParam().name), transcript(gateway)));
        EXPECT_EQ(entries(result), lines({"response=1.0.1", "webapp.error=0"}));
    }

    ParamMap result;
};

class OlderRadioRequest : public WirelessRequest
{
};

class NewerRadioRequest : public WirelessRequest
{
};

class NewerRadioUnlockedRequest : public WirelessRequest
{
};

/// Lets itself be asked whether its lock is held, and looks at the start and the end of an
/// exchange.
template <typename Implementor>
class Watched : public Implementor
{
public:
    bool isLocked()
    {
        if (!this->mutex.tryLock())
            return true;
        this->mutex.unlock();
        return false;
    }

    void takePartsOf(const CpeSettingsImplementor& other)
    {
        this->setRequestFormatter(boost::make_shared<Formatter>(*this));
        this->setRequestExecutor(boost::make_shared<Executor>(*this));
        this->setResponseParser(other.getResponseParser());
        this->setAuthenticator(other.getAuthenticator());
    }

    QList<bool> seen; ///< whether the lock was held, at each look

private:
    struct Formatter : AspRequestFormatterV2 {
        explicit Formatter(Watched& watched) : watched(watched) {}
        void clearCommands() override
        {
            watched.seen.append(watched.isLocked());
            AspRequestFormatterV2::clearCommands();
        }
        QString formatCommands() override
        {
            watched.seen.append(watched.isLocked());
            return AspRequestFormatterV2::formatCommands();
        }
        Watched& watched;
    };

    struct Executor : HttpRequestExecutor {
        explicit Executor(Watched& watched) : watched(watched) {}
        int execute(const ParamMap& params, ParamMap& result) override
        {
            const int status = HttpRequestExecutor::execute(params, result);
            watched.seen.append(watched.isLocked());
            return status;
        }
        Watched& watched;
    };
};

/// Whether the lock was held at the start and at the end of an operation.
template <typename Implementor>
QList<bool> locksOf(const WirelessCase& request, const CpeSettingsImplementor& parts)
{
    Watched<Implementor> radio;
    radio.takePartsOf(parts);
    ParamMap result;
    EXPECT_TRUE(request.operation(radio, result));
    EXPECT_FALSE(radio.isLocked());
    return radio.seen;
}

/// The write that is only formatted, in the form of a request.
const WirelessCase formattedWrite{
    "getWirelessSettingsQuery", [](auto& radio, ParamMap& result) {
        return !radio.getWirelessSettingsQuery({}, text("ap0"), text("wireless-0"), result)
                    .isEmpty();
    }};

using FormattedWrite = BuiltGateway;

} // namespace

TEST_P(OlderRadioRequest, PutsItsCommandsOnTheWire)
{
    compare(cpe->getWirelessImplementor(), "wireless/older/");
}

TEST_P(OlderRadioRequest, KeepsOthersOutFromStartToEnd)
{
    EXPECT_EQ(locksOf<AspWirelessImplementorV1>(GetParam(), *cpe->getWirelessImplementor()),
              (QList<bool>{true, true}));
}

INSTANTIATE_TEST_SUITE_P(AllOperations, OlderRadioRequest, testing::ValuesIn(olderRequests()),
                         CaseName());

TEST_P(NewerRadioRequest, PutsItsCommandsOnTheWire)
{
    compare(cpe->getWirelessImplementorNG(), "wireless/newer/");
}

TEST_P(NewerRadioRequest, KeepsOthersOutFromStartToEnd)
{
    EXPECT_EQ(locksOf<AspWirelessImplementorNG>(GetParam(), *cpe->getWirelessImplementorNG()),
              (QList<bool>{true, true}));
}

INSTANTIATE_TEST_SUITE_P(LockedOperations, NewerRadioRequest,
                         testing::ValuesIn(newerLockedRequests()), CaseName());

TEST_P(NewerRadioUnlockedRequest, PutsItsCommandsOnTheWire)
{
    compare(cpe->getWirelessImplementorNG(), "wireless/newer/");
}

TEST_P(NewerRadioUnlockedRequest, KeepsNobodyOut)
{
    EXPECT_EQ(locksOf<AspWirelessImplementorNG>(GetParam(), *cpe->getWirelessImplementorNG()),
              (QList<bool>{false, false}));
}

INSTANTIATE_TEST_SUITE_P(OnlyOperation, NewerRadioUnlockedRequest,
                         testing::Values(newerUnlockedRequest()), CaseName());

TEST_F(FormattedWrite, KeepsOthersOutFromStartToEnd)
{
    buildNewest();
    EXPECT_EQ(locksOf<AspWirelessImplementorV1>(formattedWrite, *cpe->getWirelessImplementor()),
              (QList<bool>{true, true}));
    EXPECT_EQ(locksOf<AspWirelessImplementorNG>(formattedWrite, *cpe->getWirelessImplementorNG()),
              (QList<bool>{true, true}));
}

} // namespace quorvel::test
