#pragma once

#include <QMap>
#include <QMutex>
#include <QString>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

/// The sessions of all gateways, by address, for the life of the process. A session is the text
/// that goes out as the Cookie header; the gateway alone decides when it ends.
class AspCpeSessionStorage
{
public:
    static boost::shared_ptr<AspCpeSessionStorage> getInstance();

    /// Finds a session only under an address without a scheme, unlike the other operations.
    bool hasSession(const QString& address) const;
    QString getSession(const QString& address) const;
    void setSession(const QString& address, const QString& session);
    void removeSession(const QString& address);

private:
    AspCpeSessionStorage() = default;
    Q_DISABLE_COPY(AspCpeSessionStorage)

    static boost::shared_ptr<AspCpeSessionStorage> _instance;
    static QMutex _objectLock;

    QMap<QString, QString> sessions;
};

} // namespace quorvel
