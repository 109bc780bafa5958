#pragma once

#include <quorvel/AspAdslSettingsFacade.h>

#include "support/FacadeOnGateway.h"
#include "support/Text.h"

#include <functional>

namespace quorvel::test
{

/// An internet facade on the newest kind of gateway.
using InternetFacade = FacadeOnGateway<AspAdslSettingsFacade>;

/// The kind of line that a connection is written for.
enum class Link { Dsl, Ethernet };

/// All fields of a record in their order, behind bars.
QString shown(const AspPppoxSettings& record);
QString shown(const AspPppoxState& record);
QString shown(const AspRussianPppoxSettings& record);
QString shown(const AspVpnSettings& record);
QString shown(const AspDhcpSettings& record);
QString shown(const AspStaticSettings& record);
QString shown(const AspWanVlanSettings& record);
QString shown(const AspPvcSettings& record);
QString shown(const AspDslStatus& record);
QString shown(const QString& text);
QString shown(AspAnnexMode annex);
QString shown(AspRfc2684Encapsulation encapsulation);

/// A call of a facade, whose result is given as a text.
using ShownCall = std::function<QString(AspAdslSettingsFacade& facade, AspWebAppErrorCodes& error)>;

/// The call of a getter that is asked for an instance.
template <typename Result>
ShownCall reading(Result (AspAdslSettingsFacade::*getter)(const QString&, AspWebAppErrorCodes&),
                  const char* instance)
{
    return [=](AspAdslSettingsFacade& facade, AspWebAppErrorCodes& error) {
        return shown((facade.*getter)(text(instance), error));
    };
}

/// A host's connection in which every text is set, and differs from every other.
AspAdslSettings hostConnection(const char* linkType);

} // namespace quorvel::test
