#include <quorvel/AspVoipSettingsFacade.h>

#include "access/ReplyReading.h"
#include "protocol/Vocabulary.h"
#include "voice/VoiceCall.h"

#include <QtGlobal>
#include <algorithm>

namespace quorvel
{

namespace
{

using V = VoipSettingsImplementor;

const int callsPerPage = 20;
const int allKinds = 3;

/// No gateway stores more calls; a higher claim would keep the host waiting for hours.
const int mostCalls = 20000;

const TextField<AspVoipCallHistory> callFields[] = {
    {"duration", &AspVoipCallHistory::duration},
    {"destination", &AspVoipCallHistory::destination},
    {"callerid", &AspVoipCallHistory::callerId}};

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

int claimedCalls(const ParamMap& reply)
{
    const QString claim = reply.value(replyKey(wire::voice0, QStringLiteral("numcallentries:")));
    bool isNumber = false;
    const int count = claim.toInt(&isNumber);
    if (isNumber)
        return qMin(count, mostCalls);
    // Digits that don't fit into a number are too high a claim as well.
    return !claim.isEmpty() && std::all_of(claim.cbegin(), claim.cend(), isDigit) ? mostCalls : 0;
}

/// "20240131 093000" becomes "2024-01-31 09:30:00"; the blank is taken over with the day.
QString reshapedTime(const QString& time)
{
    return time.mid(0, 4) + QLatin1Char('-') + time.mid(4, 2) + QLatin1Char('-') + time.mid(6, 3) +
           time.mid(9, 2) + QLatin1Char(':') + time.mid(11, 2) + QLatin1Char(':') + time.mid(13, 2);
}

AspVoipCallHistory callIn(const ParamMap& reply, int index)
{
    const QString number = QString::number(index);
    const QString prefix = replyKey(wire::voice0, QString());
    const auto value = [&](const char* entry) {
        return reply.value(prefix + QLatin1String(entry) + number);
    };
    AspVoipCallHistory call;
    readTexts(call, callFields, reply, prefix, number);
    call.time = reshapedTime(value("time"));
    call.direction = value("direction").toInt();
    call.callType = value("callType").toInt();
    call.status = value("status").toInt();
    return call;
}

void appendCalls(QList<AspVoipCallHistory>& calls, const AspVoipCallHistoryFilter& filter,
                 const ParamMap& reply)
{
    // The last page goes one call beyond the log's end, which gives an empty call.
    for (int i = 0; i <= filter.lastEntry - filter.firstEntry; ++i) {
        const AspVoipCallHistory call = callIn(reply, i);
        if (filter.callType == allKinds || filter.callType == call.callType)
            calls.append(call);
    }
}

/// Leaves only the status entries, which report on all pages. Calls are numbered anew on each page,
/// so a shorter page would show those of the page before.
void dropCalls(ParamMap& reply)
{
    const QString prefix = replyKey(wire::voice0, QString());
    auto entry = reply.lowerBound(prefix);
    while (entry != reply.end() && entry.key().startsWith(prefix))
        entry = reply.erase(entry);
}

} // namespace

QList<AspVoipCallHistory> AspVoipSettingsFacade::getVoipCallHistory(AspVoipCallHistoryFilter filter,
                                                                    AspWebAppErrorCodes& error)
{
    return followVoipCallHistory(filter, nullptr, error);
}

QList<AspVoipCallHistory> AspVoipSettingsFacade::followVoipCallHistory(
    AspVoipCallHistoryFilter filter, const AspVoipCallHistoryProgress& progress,
    AspWebAppErrorCodes& error)
{
    QList<AspVoipCallHistory> calls;
    FacadeCall call(*this, error);
    if (!call.isPermitted())
        return calls;
    if (call.ask(&Cpe::getVoipImplementor, &V::getCallEntriesCount, QString::number(filter.line),
                 wire::voice0)) {
        const int count = claimedCalls(call.reply());
        const int pages = qMax(count / callsPerPage + 1, 0);
        const auto tell = [&](int page) {
            call.reportError();
            if (progress)
                progress(page, pages, error);
        };
        filter.pageSize = callsPerPage;
        tell(0);
        for (int page = 0; page < pages; ++page) {
            filter.firstEntry = page * callsPerPage;
            filter.lastEntry = qMin(filter.firstEntry + callsPerPage - 1, count);
            dropCalls(call.reply());
            if (call.ask(&Cpe::getVoipImplementor, &V::getVoipCallHistory, filter, wire::voice0))
                appendCalls(calls, filter, call.reply());
            tell(page + 1);
        }
    }
    call.reportError();
    return calls;
}

} // namespace quorvel
