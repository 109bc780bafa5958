#pragma once

#include <QMutex>
#include <QMutexLocker>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

/// The one object of the process behind `instance`, created at first use under `lock` with a second
/// test inside it. The first test is an atomic load: it may run beside another thread's creation.
template <typename Object, typename Create>
boost::shared_ptr<Object> doubleCheckedInstance(boost::shared_ptr<Object>& instance, QMutex& lock,
                                                Create create)
{
    boost::shared_ptr<Object> existing = boost::atomic_load(&instance);
    if (existing)
        return existing;
    QMutexLocker locker(&lock);
    if (!instance)
        boost::atomic_store(&instance, boost::shared_ptr<Object>(create()));
    return instance;
}

} // namespace quorvel
