#include <quorvel/AspCpeFlyweightFactory.h>

#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspGeneralSettingsFacade.h>

#include "protocol/DoubleCheckedInstance.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

boost::shared_ptr<AspCpeFlyweightFactory> AspCpeFlyweightFactory::_instance;
QMutex AspCpeFlyweightFactory::_objectLock;

AspCpeFlyweightFactory::AspCpeFlyweightFactory() = default;

AspCpeFlyweightFactory::AspCpeFlyweightFactory(const AspCpeFlyweightFactory& other) = default;

AspCpeFlyweightFactory& AspCpeFlyweightFactory::operator=(const AspCpeFlyweightFactory& other) =
    default;

AspCpeFlyweightFactory::~AspCpeFlyweightFactory() = default;

boost::shared_ptr<AspCpeFlyweightFactory> AspCpeFlyweightFactory::getInstance()
{
    return doubleCheckedInstance(_instance, _objectLock, [] { return new AspCpeFlyweightFactory; });
}

boost::shared_ptr<AspCpeFacadeObject> AspCpeFlyweightFactory::getCpe(const QString& key,
                                                                     const AuthenticationInfo& info)
{
    const auto known = entries.value(key);
    if (known) {
        if (known->setAuthenticationInfo(info))
            return known;
        entries.remove(key);
        return boost::shared_ptr<AspCpeFacadeObject>();
    }
    const auto object = boost::make_shared<AspCpeFacadeObject>(info);
    if (!object->getGeneralSettingsFacade())
        return boost::shared_ptr<AspCpeFacadeObject>();
    entries.insert(key, object);
    return object;
}

boost::shared_ptr<AspCpeFacadeObject> AspCpeFlyweightFactory::getCpe(const AuthenticationInfo& info)
{
    const auto object = boost::make_shared<AspCpeFacadeObject>(info);
    const auto general = object->getGeneralSettingsFacade();
    if (!general)
        return boost::shared_ptr<AspCpeFacadeObject>();
    AspWebAppErrorCodes error;
    const QString ethernetMac = general->getEthMacAddress(error);
    if (!ethernetMac.isEmpty())
        entries.insert(ethernetMac, object);
    if (object->hasWireless()) {
        const QString wirelessMac = general->getWlanMacAddress(error);
        if (!wirelessMac.isEmpty())
            entries.insert(wirelessMac, object);
    }
    return object;
}

} // namespace quorvel
