#include "assembly/CpeBuilderFactory.h"

#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "protocol/DoubleCheckedInstance.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

boost::shared_ptr<CpeBuilderFactory> CpeBuilderFactory::_instance;
QMutex CpeBuilderFactory::_objectLock;

boost::shared_ptr<CpeBuilderFactory> CpeBuilderFactory::getInstance()
{
    return doubleCheckedInstance(_instance, _objectLock, [] { return new CpeBuilderFactory; });
}

boost::shared_ptr<CpeBuilder> CpeBuilderFactory::createBuilder(const int& type)
{
    if (type == 1)
        return boost::shared_ptr<CpeBuilder>();
    return boost::make_shared<TelvoraCpeBuilderAspV1>();
}

} // namespace quorvel
