#include "protocol/AuthenticationSettingsImplementor.h"

#include "protocol/AspCpeSessionStorage.h"

#include <QMutexLocker>

namespace quorvel
{

void AuthenticationSettingsImplementor::forgetSession()
{
    AspCpeSessionStorage::getInstance()->removeSession(getCpeAddress());
}

void AuthenticationSettingsImplementor::setAuthenticationInfo(const AuthenticationInfo& newInfo)
{
    QMutexLocker locker(&mutex);
    info = newInfo;
}

QString AuthenticationSettingsImplementor::getUser() const
{
    QMutexLocker locker(&mutex);
    return info.user;
}

void AuthenticationSettingsImplementor::setUser(const QString& user)
{
    QMutexLocker locker(&mutex);
    info.user = user;
}

QString AuthenticationSettingsImplementor::getPassword() const
{
    QMutexLocker locker(&mutex);
    return info.password;
}

void AuthenticationSettingsImplementor::setPassword(const QString& password)
{
    QMutexLocker locker(&mutex);
    info.password = password;
}

QString AuthenticationSettingsImplementor::getCpeAddress() const
{
    QMutexLocker locker(&mutex);
    return info.cpeAddress;
}

void AuthenticationSettingsImplementor::setCpeAddress(const QString& cpeAddress)
{
    QMutexLocker locker(&mutex);
    info.cpeAddress = cpeAddress;
}

} // namespace quorvel
