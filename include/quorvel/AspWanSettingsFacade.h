#pragma once

#include <quorvel/Asp3GSettings.h>
#include <quorvel/AspFacade.h>
#include <quorvel/AspGwInternetConnection.h>
#include <quorvel/AspWanDetails.h>

#include <QList>
#include <QString>

namespace quorvel
{

/// The WAN objects of a gateway: which exist, which one is the default gateway, whether link and
/// internet connection are up, how a connection is moved from one WAN to another, what they are
/// made of, and the 3G modem that one of them may stand for.
///
/// Blocking, threads, events and errors are as told at AspFacade; every operation makes one
/// exchange unless it says otherwise. Between the exchanges of one operation another caller can
/// change the gateway, unless the operation says that it keeps others out. Instances are named as
/// the gateway names them, as "wan-0", and sent as they are given.
///
/// A setter's result tells whether the gateway answered; see `error` for its verdict. Every setter
/// puts the change into effect, and every one but switchConnectionType stores it. Setters may
/// interrupt the internet connection.
class QUORVEL_API AspWanSettingsFacade : public AspFacade
{
public:
    using AspFacade::AspFacade;

    /// The WAN that the routing object `instance`, in practice "route-0", has for its default
    /// gateway. Empty on failure.
    QString getDefaultWan(const QString& instance, AspWebAppErrorCodes& error);
    /// The WAN that the routing object `instance` has for its alias default gateway. Empty on
    /// failure.
    QString getAliasDefaultWan(const QString& instance, AspWebAppErrorCodes& error);

    /// The WAN that is the default gateway at the moment, by the candidates that the routing object
    /// `instance` reports with their states: the first one in use, or the first one of all if none
    /// is. Without a candidate, or if the candidate is called "0", what getDefaultWan says.
    ///
    /// Empty on failure. One exchange, or two if getDefaultWan decides; `error` is the last one's,
    /// so it may be AspWebAppNoError after a first exchange that failed.
    QString getDefaultGwStatus(const QString& instance, AspWebAppErrorCodes& error);
    /// The same, except that if no candidate is in use the links decide: the first candidate with
    /// an Ethernet or DSL link that is up, as its layer 2 asks for, or else the last one of all.
    /// The gateway's one Ethernet WAN port, "eth-0", and its one DSL line, "dsl-0", stand for the
    /// candidates. A candidate whose layer 2 can't be read counts as one without a link.
    ///
    /// Up to two exchanges more per candidate.
    QString getDefaultGwStatusWithLinkState(const QString& instance, AspWebAppErrorCodes& error);

    /// Whether the gateway takes itself to be connected to the internet. `instance` is the object
    /// that is asked. AspGwInternetUnknown on failure.
    AspGwInternetConnection getInternetConnectionStatus(const QString& instance,
                                                        AspWebAppErrorCodes& error);
    /// Whether the default WAN is connected, for gateways that don't answer
    /// getInternetConnectionStatus. AspGwInternetUnknown if there is no default WAN or the gateway
    /// reports an error. Up to four exchanges.
    AspGwInternetConnection getInternetConnectionStatus2(AspWebAppErrorCodes& error);

    /// Names of all WAN objects, of whatever type, as "wan-0". Empty on failure. A "0" stands in
    /// front if the request had to log in first.
    QList<QString> getWanList(AspWebAppErrorCodes& error);
    /// Appends the names of the WAN objects over DSL to `dslWans` and of those over Ethernet to
    /// `ethWans`; others are left out. Whether the gateway answered; if not, both lists are as they
    /// were. Two exchanges, which keep other calls of this family out.
    bool getWanList(QList<QString>& dslWans, QList<QString>& ethWans, AspWebAppErrorCodes& error);

    /// Everything about a WAN object. An empty record on failure. Three exchanges; `error` is the
    /// first one's. If a later one fails, the list of link types that it asks for stays empty.
    AspWanDetails getWanDetails(const QString& wan, AspWebAppErrorCodes& error);

    /// Creates an entity, as "pvc" or "pppox", enables and starts it and adds it to `wan`. Its
    /// name, as "pvc-1"; empty if the gateway created none.
    ///
    /// Two exchanges, which keep other calls of this family out. If the second fails, `error`
    /// tells, and the result is the name of the entity that the first one created. If the session
    /// ends between them the entity is added all the same, but its name gets lost: the result is
    /// empty. A gateway that creates none is asked to add an entity without a name all the same.
    QString addEntity(const QString& wan, const QString& entityType, AspWebAppErrorCodes& error);
    /// Stops and deletes the entity of a type that `wan` has and takes it from the WAN. A gateway
    /// whose WAN has none is asked to delete an entity without a name all the same.
    ///
    /// Two exchanges. If the first, which asks for the entity, fails, the result is false and
    /// `error` is AspWebAppNoError.
    bool deleteEntity(const QString& wan, const QString& entityType, AspWebAppErrorCodes& error);

    /// Adds the interface `iface` to `wan`. The result is one character that is no readable text:
    /// its code is 1 for true and 0 for false.
    QString addIface(const QString& wan, const QString& iface, AspWebAppErrorCodes& error);
    /// Takes the interface `iface` from `wan`.
    bool deleteIface(const QString& wan, const QString& iface, AspWebAppErrorCodes& error);
    /// Switches a WAN on.
    bool enableWan(const QString& wan, AspWebAppErrorCodes& error);
    /// Switches a WAN off.
    bool disableWan(const QString& wan, AspWebAppErrorCodes& error);
    /// Makes `defaultGw` the default gateway, then switches the WANs `enable` on and the WANs
    /// `disable` off, in their order. Either list may be empty. Nothing is stored: the switch lasts
    /// until the gateway restarts.
    bool switchConnectionType(const QList<QString>& enable, const QList<QString>& disable,
                              const QString& defaultGw, AspWebAppErrorCodes& error);

    /// Whether the link of the Ethernet port `instance`, as "eth-0", is up: 1 or 0. 0 on failure.
    int getWanEthLinkStatus(const QString& instance, AspWebAppErrorCodes& error);
    /// Whether the link of the DSL line `instance`, as "dsl-0", is up: 1 or 0. 0 on failure.
    int getWanDslLinkStatus(const QString& instance, AspWebAppErrorCodes& error);

    /// Whether the gateway runs a manager for a modem at a serial port. False also on failure.
    bool has3GSupport(AspWebAppErrorCodes& error);
    /// The WAN that stands for the 3G modem, the first one if there are more. Empty if there is
    /// none, and on failure. Two exchanges, which keep other calls of this family out.
    QString get3GWan(AspWebAppErrorCodes& error);
    /// The modem's settings and state. `wan` is its WAN as get3GWan gives it, `settingsInstance`
    /// the object that keeps the force-3G setting.
    ///
    /// An empty record on failure, and `error` is AspWebAppNoError then, as it is for a modem that
    /// reports nothing.
    Asp3GSettings get3GSettings(const QString& wan, const QString& settingsInstance,
                                AspWebAppErrorCodes& error);
    /// Writes the five fields of `settings` that can be set, empty ones included. The instances are
    /// those of get3GSettings. A request that fails without any word of why counts as done.
    bool set3GSettings(const QString& wan, const QString& settingsInstance,
                       const Asp3GSettings& settings, AspWebAppErrorCodes& error);
};

} // namespace quorvel
