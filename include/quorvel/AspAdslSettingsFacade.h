#pragma once

#include <quorvel/AspAdslSettings.h>
#include <quorvel/AspDslStatus.h>
#include <quorvel/AspFacade.h>
#include <quorvel/AspPppoxState.h>
#include <quorvel/AspRfc2684Encapsulation.h>

#include <QString>

namespace quorvel
{

/// The internet connection of a gateway, over DSL or over Ethernet: reading its objects, and
/// writing a whole connection at once.
///
/// Blocking, threads, events and errors are as told at AspFacade; every operation makes at most one
/// exchange. `instance` is the gateway's name of the object that is read, as "pppox-0"; it is sent
/// as it is, and what the gateway then doesn't report stays empty. Records are empty on failure.
/// Passwords stand in clear in the DEBUG lines of this class.
class QUORVEL_API AspAdslSettingsFacade : public AspFacade
{
public:
    using AspFacade::AspFacade;

    /// Settings of a PPP entity.
    AspPppoxSettings getPppoxSettings(const QString& instance, AspWebAppErrorCodes& error);
    /// What the provider wants behind every user name, as "@provider". No write appends it: that is
    /// the host's affair. Empty on failure.
    QString getUsernameExtension(AspWebAppErrorCodes& error);
    /// Whether and how a PPP entity is connected.
    AspPppoxState getPppoxState(const QString& instance, AspWebAppErrorCodes& error);
    /// Credentials of a PPP entity. Neither flag is read: both stay false.
    AspRussianPppoxSettings getRussianPppoxSettings(const QString& instance,
                                                    AspWebAppErrorCodes& error);
    /// Settings of a PPTP or L2TP tunnel. Neither flag is read: both stay false.
    AspVpnSettings getVpnSettings(const QString& instance, AspWebAppErrorCodes& error);
    /// What a DHCP client entity got.
    AspDhcpSettings getDhcpSettings(const QString& instance, AspWebAppErrorCodes& error);
    /// Addresses of a static entity.
    AspStaticSettings getStaticSettings(const QString& instance, AspWebAppErrorCodes& error);
    /// Settings of a WAN VLAN entity.
    AspWanVlanSettings getWanVlanSettings(const QString& instance, AspWebAppErrorCodes& error);
    /// Settings of a PVC entity.
    AspPvcSettings getPvcSettings(const QString& instance, AspWebAppErrorCodes& error);
    /// Run-time state of a DSL line, as "dsl-0".
    AspDslStatus getDslState(const QString& instance, AspWebAppErrorCodes& error);

    /// The annexes that a DSL line can use. If the gateway names a known one, `error` is
    /// AspWebAppNoError even if the gateway reported an error beside it.
    AspAnnexMode getSupportedAnnexMode(const QString& instance, AspWebAppErrorCodes& error);
    /// The annex that a DSL line is set to. Reports as getSupportedAnnexMode does.
    AspAnnexMode getCurrentAnnexMode(const QString& instance, AspWebAppErrorCodes& error);

    /// Whether the gateway says that its line can do VDSL. `instance` is ignored. Gateways answer
    /// under a name that isn't looked at, so from them the result is false; `error` is
    /// AspWebAppNoError whenever a reply came. False on failure.
    bool getRfc2684VdslSupport(const QString& instance, AspWebAppErrorCodes& error);
    /// Encapsulation of an RFC 2684 entity. `error` is AspWebAppNoError whenever a reply came.
    AspRfc2684Encapsulation getRfc2684Encapsulation(const QString& instance,
                                                    AspWebAppErrorCodes& error);

    /// Makes `settings` the connection of the WAN `wanInstance` over the DSL line `dslInstance`,
    /// stores it and puts it into effect, which interrupts the internet connection.
    ///
    /// The link type is always written. For "pppoe" and "pppoa" follow the credentials, the
    /// circuit, the annex if the line has a choice, always that of "dsl-0", and the encapsulation;
    /// for "russian_pppoe" the credentials, and the addresses if `russianPppoxSettings.useStatic`;
    /// for "static" the addresses; for the others nothing. Entities must exist and be named: what
    /// belongs to one without a name is left out without an error.
    ///
    /// Whether the gateway answered; see `error` for its verdict. An unknown link type gives false
    /// with AspWebAppNoError and no request, so look at the result too.
    bool setAdslSettings(const QString& wanInstance, const QString& dslInstance,
                         const AspAdslSettings& settings, AspWebAppErrorCodes& error);

    /// Makes `settings` the connection of the WAN `wanInstance` over Ethernet, stores it and puts
    /// it into effect, which interrupts the internet connection.
    ///
    /// Link type and VLAN number are always written, the latter to an instance without a name if
    /// there is none. For "pppoe" and "russian_pppoe" follow the credentials; for "vpn" and "l2tp"
    /// the tunnel, which becomes the default route, and its DHCP client is put into effect; for
    /// "static" the addresses. The addresses also follow where `useStatic` of the link type's
    /// settings is set. Entities must exist and be named, and the result tells, as for
    /// setAdslSettings; "pppoa" is unknown here.
    bool setEthSettings(const QString& wanInstance, const AspAdslSettings& settings,
                        AspWebAppErrorCodes& error);
};

} // namespace quorvel
