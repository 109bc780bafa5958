#pragma once

#include <quorvel/AuthenticationInfo.h>

#include <QMutex>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

class RequestExecutor;

/// The credentials and the address of one gateway, shared by all implementors of its Cpe.
class AuthenticationSettingsImplementor
{
public:
    AuthenticationSettingsImplementor() = default;
    virtual ~AuthenticationSettingsImplementor() = default;

    /// Logs in through `executor` and stores the session. A CpeLoginResult.
    virtual int login(boost::shared_ptr<RequestExecutor> executor) = 0;
    /// The counterpart of login; gateways end sessions by themselves.
    virtual bool logout(boost::shared_ptr<RequestExecutor> executor) = 0;
    /// Drops the stored session, if there is one, so that the next request logs in.
    virtual void forgetSession();

    void setAuthenticationInfo(const AuthenticationInfo& info);
    QString getUser() const;
    void setUser(const QString& user);
    QString getPassword() const;
    void setPassword(const QString& password);
    QString getCpeAddress() const;
    void setCpeAddress(const QString& cpeAddress);

private:
    Q_DISABLE_COPY(AuthenticationSettingsImplementor)

    AuthenticationInfo info;
    mutable QMutex mutex;
};

} // namespace quorvel
