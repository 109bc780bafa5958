#include <quorvel/AspAdslSettingsFacade.h>

#include "internet/ConnectionEntries.h"
#include "internet/InternetCall.h"

#include <initializer_list>
#include <utility>

namespace quorvel
{

namespace
{

/// The line of a write that was applied; labels and texts stand without anything between them.
QString appliedLine(const char* beginning,
                    std::initializer_list<std::pair<const char*, QString>> labelledTexts)
{
    QString line = QLatin1String(beginning);
    for (const auto& [label, text] : labelledTexts)
        line += QLatin1String(label) + text;
    return line;
}

auto logged(const QString& done, const char* failureLine)
{
    return [=](bool applied) {
        if (applied)
            logDebug(done);
        else
            logError(QLatin1String(failureLine));
    };
}

} // namespace

// Both lines tell the host's whole record, whatever part of it the link type sends. That labels
// repeat, and name other things than they stand for, is on purpose: logged texts stay as they are.

bool AspAdslSettingsFacade::setAdslSettings(const QString& wanInstance, const QString& dslInstance,
                                            const AspAdslSettings& settings,
                                            AspWebAppErrorCodes& error)
{
    const ParamMap entries = entriesOverDsl(wanInstance, dslInstance, settings);
    const QString applied =
        appliedLine("AspAdslSettingsFacade::setAdslSettings -> Settings are applied:",
                    {{"\tInstance:", dslInstance},
                     {"\tWan Instance:", wanInstance},
                     {"\tWan Link Type:", settings.linkType},
                     {"\tPPPoX Type:", settings.pppoxSettings.type},
                     {"\tPPPoX Username:", settings.pppoxSettings.username},
                     {"\tPPPoX Password:", settings.pppoxSettings.password},
                     {"\tVPI:", settings.pvcSettings.vpi},
                     {"\tVCI:", settings.pvcSettings.vci}});
    return change(
        *this, error,
        internet(&AdslSettingsImplementor::setAdslSettings, wanInstance, dslInstance, entries),
        logged(applied, "AspAdslSettingsFacade::setAdslSettings -> Failed to set adsl settings!"));
}

bool AspAdslSettingsFacade::setEthSettings(const QString& wanInstance,
                                           const AspAdslSettings& settings,
                                           AspWebAppErrorCodes& error)
{
    const ParamMap entries = entriesOverEthernet(wanInstance, settings);
    const QString applied =
        appliedLine("AspAdslSettingsFacade::setEthSettings -> Settings are applied:",
                    {{"\tInstance:", wanInstance},
                     {"\tWan Link Type:", settings.linkType},
                     {"\tPPPoX Type:", settings.pppoxSettings.type},
                     {"\tPPPoX Username:", settings.pppoxSettings.username},
                     {"\tPPPoX Password:", settings.pppoxSettings.password},
                     {"\tSTATIC Server:", settings.staticSettings.ip},
                     {"\tSTATIC Username:", settings.staticSettings.mask},
                     {"\tSTATIC Password:", settings.staticSettings.gateway},
                     {"\tSTATIC Server:", settings.staticSettings.dns1},
                     {"\tSTATIC Username:", settings.staticSettings.dns2},
                     {"\tVPN Server:", settings.vpnSettings.server},
                     {"\tVPN Username:", settings.vpnSettings.username},
                     {"\tVPN Password:", settings.vpnSettings.password}});
    return change(
        *this, error, internet(&AdslSettingsImplementor::setEthSettings, wanInstance, entries),
        logged(applied, "AspAdslSettingsFacade::setEthSettings -> Failed to set eth settings!"));
}

} // namespace quorvel
