#include <quorvel/AspVoipSettingsFacade.h>

#include "access/ReplyReading.h"
#include "protocol/Vocabulary.h"
#include "voice/GainConversion.h"
#include "voice/VoiceCall.h"
#include "voice/VoiceKeys.h"

namespace quorvel
{

namespace
{

using V = VoipSettingsImplementor;

// Behind a line's path.
const TextField<AspVoipAccount> sipFields[] = {
    {wire::sipUri.data(), &AspVoipAccount::uri},
    {wire::sipProxyServer.data(), &AspVoipAccount::proxyServer},
    {wire::sipUserAgentDomain.data(), &AspVoipAccount::userAgentDomain},
    {wire::sipAuthUserName.data(), &AspVoipAccount::authUserName},
    {wire::sipAuthPassword.data(), &AspVoipAccount::authPassword}};
const TextField<AspVoipAccount> gainFields[] = {
    {wire::lineTransmitGain.data(), &AspVoipAccount::transmitGain},
    {wire::lineReceiveGain.data(), &AspVoipAccount::receiveGain}};

// Before a line's number.
const TextField<AspVoipAccount> statusFields[] = {{"User_Name_", &AspVoipAccount::userName},
                                                  {"Phone_Number_", &AspVoipAccount::phoneNumber}};

const QLatin1String lineType("line");
const QLatin1String analogueType("fxo");

/// The range of a port's gains, as the gateway stores them.
struct GainRange {
    int min;
    int max;
};

QList<AspVoipAccount> linesIn(const ParamMap& reply)
{
    QList<AspVoipAccount> lines;
    for (auto entry = reply.cbegin(); entry != reply.cend(); ++entry) {
        if (!entry.key().contains(wire::voice0))
            continue;
        AspVoipAccount line;
        line.id = entry.value();
        if (entry.key().contains(lineType, Qt::CaseInsensitive))
            line.type = lineType;
        else if (entry.key().contains(analogueType, Qt::CaseInsensitive))
            line.type = analogueType;
        lines.append(line);
    }
    return lines;
}

/// The user part of a SIP address, which may come bare.
QString userOf(const QString& address)
{
    const QLatin1String scheme("SIP:");
    const int found = address.indexOf(scheme);
    const int start = found < 0 ? 0 : found + scheme.size();
    const int end = address.indexOf(QLatin1Char('@'), start);
    return end < 0 ? address.mid(start) : address.mid(start, end - start);
}

void readGains(AspVoipAccount& account, const ParamMap& reply, const QString& path,
               const GainRange& range)
{
    readTexts(account, gainFields, reply, path);
    for (QString* gain : {&account.transmitGain, &account.receiveGain})
        *gain = convertScale(*gain, range.min, range.max);
}

/// Whether the gateway knows the line's state; without it there is no account.
bool readLine(AspVoipAccount& line, const QString& number, const ParamMap& reply,
              const QString& path)
{
    bool isNumber = false;
    const QString status = replyKey(wire::voice0, QLatin1String("Voip_Status_") + number);
    line.voipStatus = reply.value(status).toInt(&isNumber);
    if (!isNumber)
        return false;
    readTexts(line, statusFields, reply, replyKey(wire::voice0, QString()), number);
    readTexts(line, sipFields, reply, path);
    line.uri = userOf(line.uri);
    line.enabled = isSet(reply, path + wire::lineEnable);
    return true;
}

AspVoipSettings settingsIn(const ParamMap& reply, const QList<AspVoipAccount>& lines,
                           const GainRange& lineRange, const GainRange& analogueRange)
{
    AspVoipSettings settings;
    for (AspVoipAccount account : lines) {
        const bool isLine = account.type == lineType;
        if (!isLine && account.type != analogueType)
            continue;
        const QString number = QString::number(account.id.toInt());
        const QString path = replyKey(wire::voice0, wire::lineEntry(number, QLatin1String()));
        if (isLine && !readLine(account, number, reply, path))
            continue;
        readGains(account, reply, path, isLine ? lineRange : analogueRange);
        settings.accounts.append(account);
    }
    settings.enabled = isSet(reply, replyKey(wire::voice0, wire::enable));
    return settings;
}

QList<AspVoipAccount> fetchLines(AspFacade& facade, AspWebAppErrorCodes& error)
{
    QList<AspVoipAccount> lines;
    fetch(
        facade, error, voiceCall(&V::getLineList, wire::voice0),
        [&](const ParamMap& reply) { lines = linesIn(reply); }, nullptr);
    return lines;
}

/// Adds the gains to a reply, status entries included. Without them the gains stay empty, and that
/// is no failure.
void addGains(ParamMap& reply, AspFacade& facade)
{
    AspWebAppErrorCodes unreported;
    const auto add = [&](const ParamMap& gains) {
        for (auto entry = gains.cbegin(); entry != gains.cend(); ++entry)
            reply.insert(entry.key(), entry.value());
    };
    fetch(facade, unreported, voiceCall(&V::getGainSettings, wire::voice0), add, nullptr);
}

} // namespace

AspVoipSettings AspVoipSettingsFacade::getVoipAccounts(AspWebAppErrorCodes& error)
{
    AspVoipSettings settings;
    FacadeCall call(*this, error);
    if (!call.isPermitted())
        return settings;
    // Its failure doesn't end the call; what the accounts report takes its place.
    const QList<AspVoipAccount> lines = fetchLines(*this, error);
    if (call.ask(&Cpe::getVoipImplementor, &V::getVoipAccounts, wire::voice0)) {
        addGains(call.reply(), *this);
        getGainValues();
        settings =
            settingsIn(call.reply(), lines, {fxsMinGain, fxsMaxGain}, {fxoMinGain, fxoMaxGain});
    }
    call.reportError();
    return settings;
}

} // namespace quorvel
