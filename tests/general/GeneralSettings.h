#pragma once

#include <quorvel/AspGeneralSettingsFacade.h>

#include "general/GeneralSettingsImplementor.h"
#include "general/ProgrammedExecutor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "support/BuiltGateway.h"
#include "support/Text.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

/// The general settings of a gateway with dialect 1.0.1.
class GeneralSettings : public BuiltGateway
{
protected:
    GeneralSettings()
    {
        build({{"XML_VERSION", "1.0.1"}});
        facade = boost::make_shared<AspGeneralSettingsFacade>(cpe);
    }

    /// Scripts a reply with these entries.
    void reply(std::initializer_list<Entry> entries) { gateway.reply(reply101(entries)); }

    /// Puts a transport with these outcomes in place of the network.
    void program(std::deque<ProgrammedExecutor::Outcome> outcomes)
    {
        cpe->getGeneralImplementor()->setRequestExecutor(
            boost::make_shared<ProgrammedExecutor>(outcomes));
    }

    /// How the last operation ended.
    int code() const { return static_cast<int>(error); }

    AspCpeSessionStorage& storage() const { return *AspCpeSessionStorage::getInstance(); }

    void expireSession() { storage().removeSession(gateway.address()); }

    boost::shared_ptr<AspGeneralSettingsFacade> facade;
    AspWebAppErrorCodes error = static_cast<AspWebAppErrorCodes>(77);
};

} // namespace quorvel::test
