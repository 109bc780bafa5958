#include "fuzz/FedGateway.h"
#include "fuzz/ReferenceXml.h"
#include "fuzz/Require.h"
#include "protocol/AspResponseParserV2.h"
#include "voice/GainConversion.h"

#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspUsbHostSettingsFacade.h>
#include <quorvel/AspVoipSettingsFacade.h>
#include <quorvel/AspWanSettingsFacade.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <vector>

/// \file
/// Counts that a gateway claims, and the numbered entries behind them. An input is a list of
/// replies with ASCII's record separator between them, each of them lines "entry=value"; the first
/// is the reply to what asks for a count, and the reply to every question that needs but one.

namespace quorvel::fuzz
{

namespace
{

using Entries = ParamMap;

Entries entriesIn(const QString& record)
{
    Entries entries;
    for (const QString& line : record.split(QLatin1Char('\n'))) {
        const int sign = line.indexOf(QLatin1Char('='));
        if (sign > 0)
            entries.insert(line.left(sign), line.mid(sign + 1));
    }
    return entries;
}

/// A reply and what it says once it is parsed, which for an odd character may not be what was
/// meant.
struct Reply {
    QString text;
    ParamMap entries;
    bool readable;

    Reply(const QString& object, const Entries& meant) : text(pairReply(object, meant))
    {
        readable = AspResponseParserV2().parse(text, entries);
    }
};

/// The number that a text begins and ends with, blanks aside; `otherwise` if it is something else.
/// Numbers that are too large come as the largest.
long long numberIn(const QString& text, long long otherwise)
{
    const QByteArray bytes = text.trimmed().toUtf8();
    char* end = nullptr;
    const long long number = std::strtoll(bytes.constData(), &end, 10);
    return bytes.isEmpty() || end != bytes.constData() + bytes.size() ? otherwise : number;
}

/// The same where a text that doesn't fit into 32 bits counts as something else.
int narrowNumberIn(const QString& text)
{
    const long long number = numberIn(text, 0);
    return number == int(number) ? int(number) : 0;
}

// Call history.

/// No more than 20000 are believed, and what is too small for a number is none.
int claimedCalls(const QString& claim)
{
    const long long number = numberIn(claim, 0);
    return number < INT_MIN ? 0 : int(std::min(number, 20000LL));
}

const QString voice = QStringLiteral("voice-0");

QString pageOf(const QString& request)
{
    const ReferenceDocument document = readReference(request.toUtf8());
    require(document.wellFormed && document.branches.size() == 1, "a page is one question");
    return document.branches[0].leaves[0].second;
}

void expectCall(const AspVoipCallHistory& call, const ParamMap& page, int index)
{
    const auto entry = [&](const char* name) {
        return page.value(QStringLiteral("voice-0.%1%2").arg(QLatin1String(name)).arg(index));
    };
    require(call.destination == entry("destination"), "a call's destination is its own");
    require(call.callerId == entry("callerid"), "a call's caller is its own");
    require(call.duration == entry("duration"), "a call's duration is its own");
    require(call.status == narrowNumberIn(entry("status")), "a call's status is its own");
    require(call.callType == narrowNumberIn(entry("callType")), "a call's kind is its own");
    // Four characters come in, and nothing behind the seconds is taken over.
    require(call.time.size() == std::min(15, entry("time").size()) + 4, "a time keeps its length");
}

/// The calls that one page gives to a host that wants all kinds.
void expectPage(const QList<AspVoipCallHistory>& calls, int& next, const ParamMap& page, int length)
{
    for (int index = 0; index < length; ++index, ++next) {
        require(next < calls.size(), "no call is left out");
        expectCall(calls[next], page, index);
    }
}

void checkHistory(const std::vector<Entries>& records)
{
    QStringList replies;
    std::vector<Reply> read;
    for (const Entries& record : records) {
        read.emplace_back(voice, record);
        replies.append(read.back().text);
    }
    const FedGateway gateway(true, replies);
    AspVoipSettingsFacade facade(gateway.cpe);
    AspWebAppErrorCodes error;
    QList<AspVoipCallHistory> calls = facade.getVoipCallHistory({0, 3, 0, 0, 0}, error);
    if (faultIsPlanted() && calls.size() > 20)
        calls.removeAt(20);
    const QStringList& requests = gateway.executor->requests;
    if (!read[0].readable) {
        require(requests.size() == 1 && calls.isEmpty(), "without a count there are no calls");
        return;
    }
    const QString claim = read[0].entries.value(QStringLiteral("voice-0.numcallentries:"));
    const int count = claimedCalls(claim);
    const int pages = count <= -20 ? 0 : count / 20 + 1;
    require(requests.size() == pages + 1, "a page is asked for every twenty calls");
    int next = 0;
    for (int page = 0; page < pages; ++page) {
        const int last = std::min(20 * page + 19, count);
        require(pageOf(requests[page + 1]) ==
                    QStringLiteral("callhistory:%1:%2:0").arg(20 * page).arg(last),
                "pages follow each other");
        if (page + 1 < int(read.size()) && read[page + 1].readable)
            expectPage(calls, next, read[page + 1].entries, last - 20 * page + 1);
    }
    require(next == calls.size(), "no call is made up");
}

// USB devices.

void checkDevices(const Entries& record)
{
    const Reply reply(QStringLiteral("usbhost_mngr-0"), record);
    const FedGateway gateway(true, {reply.text});
    AspWebAppErrorCodes error;
    const AspUsbHostDevices devices =
        AspUsbHostSettingsFacade(gateway.cpe).getUsbHostDevices(error);
    const auto entry = [&](const char* name, int number) {
        return reply.entries.value(
            QStringLiteral("usbhost_mngr-0.%1%2").arg(QLatin1String(name)).arg(number));
    };
    const int claimed =
        narrowNumberIn(reply.entries.value(QStringLiteral("usbhost_mngr-0.DeviceCount")));
    // Few replies number their devices higher; those above are not looked for.
    const int searched = std::min(claimed, 1000);
    int disks = 0;
    int printers = 0;
    for (int number = 0; number < searched; ++number) {
        const QString type = entry("Type", number);
        if (type == QLatin1String("0"))
            require(devices.disks.value(disks++).deviceId == entry("DeviceId", number),
                    "a disk stands at its place");
        else if (type == QLatin1String("1"))
            require(devices.printers.value(printers++).serial == entry("Serial", number),
                    "a printer stands at its place");
    }
    if (searched == claimed)
        require(devices.disks.size() == disks && devices.printers.size() == printers,
                "no device is made up");
    require(devices.disks.size() + devices.printers.size() <= reply.entries.size(),
            "there are no more devices than entries");
}

// Lists that end where their numbers do.

int runLength(const ParamMap& entries, const QString& pattern)
{
    int length = 0;
    while (entries.contains(pattern.arg(length)))
        ++length;
    return length;
}

void checkClients(const Entries& record)
{
    const Reply reply(QStringLiteral("dhcps-0"), record);
    const FedGateway gateway(true, {reply.text, reply.text});
    AspGeneralSettingsFacade facade(gateway.cpe);
    AspWebAppErrorCodes error;
    const QList<AspDhcpsClient> known = facade.getStaticClientList(error);
    const QList<AspDhcpsClient> leased = facade.getDynamicClientList(error);
    require(known.size() <= runLength(reply.entries, QStringLiteral("dhcps-0.client%1.mac")),
            "clients end where their numbers do");
    require(leased.size() <= runLength(reply.entries, QStringLiteral("dhcps-0.lease%1.mac")),
            "leases end where their numbers do");
    for (const AspDhcpsClient& client : known)
        require(!client.mac.startsWith(QLatin1String("00:00:00:00:00:00")) ||
                    client.mac.size() > 17,
                "a place without a client is left out");
}

void checkLinkTypes(const Entries& record)
{
    const Reply reply(QStringLiteral("wan-0"), record);
    const FedGateway gateway(true, {reply.text, reply.text, reply.text});
    AspWebAppErrorCodes error;
    const AspWanDetails details =
        AspWanSettingsFacade(gateway.cpe).getWanDetails(QStringLiteral("wan-0"), error);
    const int length = runLength(reply.entries, QStringLiteral("wan-0.linktype%1"));
    require(details.dslLinkTypes == details.ethLinkTypes, "the same answer reads the same");
    require(details.dslLinkTypes.size() <= std::min(length, 20), "link types are twenty at most");
    for (int i = 0; i < details.dslLinkTypes.size(); ++i)
        require(details.dslLinkTypes[i] ==
                    reply.entries.value(QStringLiteral("wan-0.linktype%1").arg(i)),
                "a link type stands at its place");
    const QStringList values = reply.entries.values();
    for (const QString& tunnel : details.vpnInstances)
        require(tunnel.startsWith(QLatin1String("vpn-")) && values.contains(tunnel),
                "a tunnel is named by the reply");
}

// Gains.

int wrapped(long long number)
{
    return static_cast<int>(static_cast<unsigned>(number));
}

QString ratioRoundedUp(long long numerator, long long denominator, long long added)
{
    const long long quotient = numerator / denominator;
    const bool isPositive = (numerator < 0) == (denominator < 0);
    const bool goesUp = numerator % denominator != 0 && isPositive;
    return QString::number(wrapped((quotient + (goesUp ? 1 : 0)) + added));
}

void checkGains(const Entries& record)
{
    const QString gain = record.value(QStringLiteral("gain"));
    const int min = narrowNumberIn(record.value(QStringLiteral("min")));
    const int max = narrowNumberIn(record.value(QStringLiteral("max")));
    const long long number = numberIn(gain, LLONG_MAX);
    const bool isNumber = number == int(number);
    const long long range = wrapped(0LL + max - min);
    const QString scale = isNumber && min != max
                              ? ratioRoundedUp(wrapped((number - min) * 100), range, 0)
                              : QString();
    require(convertScale(gain, min, max) == scale, "a gain becomes its percentage");
    const QString value = isNumber ? ratioRoundedUp(wrapped(number * range), 100, min) : QString();
    require(convertGain(gain, min, max) == value, "a percentage becomes its gain");
}

} // namespace

} // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace quorvel::fuzz;
    const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    std::vector<Entries> records;
    for (const QString& record : input.split(QChar(0x1e)))
        records.push_back(entriesIn(record));
    checkHistory(records);
    checkDevices(records[0]);
    checkClients(records[0]);
    checkLinkTypes(records[0]);
    checkGains(records[0]);
    return 0;
}
