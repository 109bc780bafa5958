#include "assembly/RehearsalBuilder.h"

#include <quorvel/CpeSettingsImplementor.h>

#include <boost/make_shared.hpp>

namespace quorvel
{

RehearsalBuilder::RehearsalBuilder(RehearsalExecutor::Taker take) : take(std::move(take)) {}

bool RehearsalBuilder::buildRequestExecutor()
{
    if (!TelvoraCpeBuilderAspV1::buildRequestExecutor())
        return false;
    for (const auto& implementor : settingsImplementors())
        implementor->setRequestExecutor(boost::make_shared<RehearsalExecutor>(take));
    return true;
}

} // namespace quorvel
