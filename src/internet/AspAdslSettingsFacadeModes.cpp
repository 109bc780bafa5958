#include <quorvel/AspAdslSettingsFacade.h>

#include "internet/AnnexWords.h"
#include "internet/InternetCall.h"
#include "internet/InternetKeys.h"
#include "protocol/Vocabulary.h"

namespace quorvel
{

namespace
{

const Word<AspRfc2684Encapsulation> encapsulationWords[] = {{"llc", AspRfc2684Llc},
                                                            {"vcmux", AspRfc2684VcMux}};

/// A getter of an annex: who is asked, which entry tells, and the texts that are logged.
struct AnnexQuestion {
    bool (AdslSettingsImplementor::*operation)(const QString& instance, ParamMap& result);
    QLatin1String entry;
    QLatin1String fetchedLine;
    QLatin1String instanceLabel;
    QLatin1String modeLabel;
    QLatin1String failureLine;
};

const AnnexQuestion supportedAnnexes{
    &AdslSettingsImplementor::getSupportedAnnexMode,
    wire::annexes,
    QLatin1String("AspAdslSettingsFacade::getSupportedAnnexMode -> Annex mode is fetched:"),
    QLatin1String("\tInstance:"),
    QLatin1String("\tSupported Mode:"),
    QLatin1String("AspAdslSettingsFacade::getSupportedAnnexMode -> Failed to get supported annex "
                  "modes!")};

const AnnexQuestion currentAnnex{
    &AdslSettingsImplementor::getCurrentAnnexMode,
    wire::annex,
    QLatin1String("AspAdslSettingsFacade::getCurrentAnnexMode -> Annex mode is fetched:"),
    QLatin1String("\tInstance: "),
    QLatin1String("\tCurrent Mode: "),
    QLatin1String("AspAdslSettingsFacade::getCurrentAnnexMode -> Failed to get current annex!")};

AspAnnexMode annexIn(const ParamMap& reply, const QString& instance, const AnnexQuestion& question)
{
    const QString text = reply.value(replyKey(instance, question.entry));
    logDebug(question.fetchedLine + question.instanceLabel + instance + question.modeLabel + text);
    return meaningOf(text.toLower(), annexWords, AspAnnexUnknown);
}

AspAnnexMode fetchAnnex(AspFacade& facade, AspWebAppErrorCodes& error, const QString& instance,
                        const AnnexQuestion& question)
{
    FacadeCall call(facade, error);
    if (!call.isPermitted())
        return AspAnnexUnknown;
    AspAnnexMode annex = AspAnnexUnknown;
    if (call.ask(&Cpe::getAdslImplementor, question.operation, instance))
        annex = annexIn(call.reply(), instance, question);
    else
        logError(question.failureLine);
    // A known annex is taken as success, whatever the gateway reported beside it.
    if (annex == AspAnnexUnknown)
        call.reportError();
    return annex;
}

/// A getter that takes any reply for success and reports an error only if none came. An empty reply
/// isn't decoded.
template <typename Request, typename Decode>
void fetchUnjudged(AspFacade& facade, AspWebAppErrorCodes& error, Request request, Decode decode,
                   const char* failureLine)
{
    FacadeCall call(facade, error);
    if (!call.isPermitted())
        return;
    if (!request(call)) {
        logError(QLatin1String(failureLine));
        call.reportError();
    } else if (!call.reply().isEmpty()) {
        decode(static_cast<const ParamMap&>(call.reply()));
    }
}

} // namespace

QString AspAdslSettingsFacade::getUsernameExtension(AspWebAppErrorCodes& error)
{
    return fetchText(
        *this, error, internet(&AdslSettingsImplementor::getUsernameExtension),
        replyKey(wire::webui0, wire::usernameExtension),
        "AspAdslSettingsFacade::getUsernameExtension -> Settings are fetched:Username Extension:\t",
        "AspAdslSettingsFacade::getUsernameExtension -> Failed to get username extension!");
}

AspAnnexMode AspAdslSettingsFacade::getSupportedAnnexMode(const QString& instance,
                                                          AspWebAppErrorCodes& error)
{
    return fetchAnnex(*this, error, instance, supportedAnnexes);
}

AspAnnexMode AspAdslSettingsFacade::getCurrentAnnexMode(const QString& instance,
                                                        AspWebAppErrorCodes& error)
{
    return fetchAnnex(*this, error, instance, currentAnnex);
}

bool AspAdslSettingsFacade::getRfc2684VdslSupport(const QString& instance,
                                                  AspWebAppErrorCodes& error)
{
    bool supported = false;
    fetchUnjudged(
        *this, error, internet(&AdslSettingsImplementor::getRfc2684VdslSupport, instance),
        [&](const ParamMap& reply) {
            // Looked for without an instance in front, unlike every other entry, so that what
            // gateways answer isn't found: the result is no, on purpose.
            const QString text = reply.value(wire::vdslSupport, QStringLiteral("false"));
            logDebug(QLatin1String("AspAdslSettingsFacade::getRfc2684VdslSupport -> VdslSupport:") +
                     text);
            supported = text == QLatin1String("true");
        },
        "AspAdslSettingsFacade::getRfc2684VdslSupport -> Failed to fetch VdslSupport!");
    return supported;
}

AspRfc2684Encapsulation AspAdslSettingsFacade::getRfc2684Encapsulation(const QString& instance,
                                                                       AspWebAppErrorCodes& error)
{
    AspRfc2684Encapsulation encapsulation = AspRfc2684Unknown;
    fetchUnjudged(
        *this, error, internet(&AdslSettingsImplementor::getRfc2684Encapsulation, instance),
        [&](const ParamMap& reply) {
            const QString text = reply.value(replyKey(instance, wire::encaps));
            logDebug(
                QLatin1String("AspAdslSettingsFacade::getRfc2684Encapsulation -> Encapsulation:") +
                text);
            encapsulation = meaningOf(text.toLower(), encapsulationWords, AspRfc2684Unknown);
        },
        "AspAdslSettingsFacade::getRfc2684Encapsulation -> Failed to fetch encapsulation type!");
    return encapsulation;
}

} // namespace quorvel
