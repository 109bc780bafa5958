#pragma once

#include <quorvel/AuthenticationInfo.h>
#include <quorvel/QuorvelApi1Export.h>

#include <QMap>
#include <QMutex>
#include <QString>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

class AspCpeFacadeObject;

/// The library's front door: hands out the handles of gateways and shares one handle among all who
/// ask for the same gateway, so that recognition and login run once per gateway.
///
/// Gateways are known by a key, in practice a MAC address, compared exactly; their addresses play
/// no part in it. A handle stays in the factory to the end of the process unless it is replaced or
/// removed as told below.
///
/// getInstance may be called from any thread. The getCpe operations take no lock and must not be
/// called from two threads at once; they block as told at AspCpeFacadeObject. An empty reference as
/// their result means that no usable gateway could be reached. Nothing throws.
class QUORVEL_API AspCpeFlyweightFactory
{
public:
    /// The factory of the process, made at first use. Never empty.
    static boost::shared_ptr<AspCpeFlyweightFactory> getInstance();

    /// The handle known under `key`, which may be any text, also an empty one.
    ///
    /// A new key recognises the gateway and logs in: the handle is kept if that succeeds and the
    /// gateway has general settings, else the result is empty. A known key with unchanged
    /// credentials sends nothing. With changed credentials it logs in with the new ones; if they
    /// are refused, the key is removed and the result is empty.
    boost::shared_ptr<AspCpeFacadeObject> getCpe(const QString& key,
                                                 const AuthenticationInfo& info);

    /// A new handle on a gateway whose key isn't known yet, always recognised afresh. It is kept
    /// under its Ethernet MAC address and, if it has wireless, under its wireless MAC address too,
    /// as the gateway spells them, and replaces the handles kept there. A MAC address that can't be
    /// read is passed over. Up to two exchanges more than recognition.
    boost::shared_ptr<AspCpeFacadeObject> getCpe(const AuthenticationInfo& info);

    /// The copy knows the handles that this factory knows now, and goes its own way from then on.
    AspCpeFlyweightFactory(const AspCpeFlyweightFactory& other);
    /// Replaces the known handles by the other factory's.
    AspCpeFlyweightFactory& operator=(const AspCpeFlyweightFactory& other);
    /// Gives up the shares in all handles.
    virtual ~AspCpeFlyweightFactory();

private:
    AspCpeFlyweightFactory();

    static boost::shared_ptr<AspCpeFlyweightFactory> _instance;
    static QMutex _objectLock;

    QMap<QString, boost::shared_ptr<AspCpeFacadeObject>> entries;
};

} // namespace quorvel
