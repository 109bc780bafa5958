#include "protocol/AspCpeSessionStorage.h"

#include "protocol/DoubleCheckedInstance.h"

namespace quorvel
{

namespace
{

QString normalised(QString address)
{
    return address.remove(QLatin1String("http://")).remove(QLatin1String("https://"));
}

} // namespace

boost::shared_ptr<AspCpeSessionStorage> AspCpeSessionStorage::_instance;
QMutex AspCpeSessionStorage::_objectLock;

boost::shared_ptr<AspCpeSessionStorage> AspCpeSessionStorage::getInstance()
{
    return doubleCheckedInstance(_instance, _objectLock, [] { return new AspCpeSessionStorage; });
}

bool AspCpeSessionStorage::hasSession(const QString& address) const
{
    QMutexLocker locker(&_objectLock);
    // The address as given, not normalised: hosts that write a scheme rely on the fresh login that
    // this leads to.
    return sessions.contains(address);
}

QString AspCpeSessionStorage::getSession(const QString& address) const
{
    QMutexLocker locker(&_objectLock);
    return sessions.value(normalised(address));
}

void AspCpeSessionStorage::setSession(const QString& address, const QString& session)
{
    QMutexLocker locker(&_objectLock);
    sessions.insert(normalised(address), session);
}

void AspCpeSessionStorage::removeSession(const QString& address)
{
    QMutexLocker locker(&_objectLock);
    sessions.remove(normalised(address));
}

} // namespace quorvel
