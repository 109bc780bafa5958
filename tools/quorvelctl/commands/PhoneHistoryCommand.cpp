#include "Failure.h"
#include "ProgressLine.h"
#include "commands/Phone.h"

#include <algorithm>
#include <memory>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

/// For the library, calls of any kind.
const int allKinds = 3;

struct Wanted {
    int line = -1; ///< any line if it is negative
    int kind = allKinds;
    bool csv = false;
};

/// A call and the line in whose log it stands.
struct LoggedCall {
    int line;
    AspVoipCallHistory call;
};

/// What stands for a call that the gateway doesn't tell; each reading of a log ends with one.
bool isEmpty(const AspVoipCallHistory& call)
{
    return call.time == QLatin1String("--::") && call.destination.isEmpty() &&
           call.callerId.isEmpty() && call.duration.isEmpty();
}

Record recordOf(const LoggedCall& logged)
{
    const AspVoipCallHistory& call = logged.call;
    return {plainField("time", "Time", call.time),
            plainField("line", "Line", logged.line),
            plainField("kind", "Kind", call.callType),
            plainField("direction", "Direction", call.direction),
            plainField("caller", "Caller", call.callerId),
            plainField("called", "Called", call.destination),
            plainField("duration", "Duration", call.duration),
            plainField("status", "Status", call.status)};
}

QList<int> linesOf(Gateway& gateway)
{
    QList<int> lines;
    const QList<AspVoipAccount> accounts = readLines(gateway);
    for (const AspVoipAccount& account : accounts) {
        bool isNumber = false;
        const int line = account.id.toInt(&isNumber);
        if (isNumber && !lines.contains(line))
            lines.append(line);
    }
    return lines;
}

/// Fails if there is no such line: its log is as empty as that of a line without calls.
void expectLine(Gateway& gateway, int line)
{
    if (!linesOf(gateway).contains(line))
        throw Failure{GatewayFailed,
                      QStringLiteral("%1 has no line %2").arg(gateway.address()).arg(line)};
}

QList<LoggedCall> readCalls(Gateway& gateway, int line, int kind)
{
    const auto phone = telephony(gateway);
    ProgressLine shown;
    const auto read = [&](AspWebAppErrorCodes& error) {
        AspWebAppErrorCodes firstError = AspWebAppNoError;
        const auto calls = phone->followVoipCallHistory(
            {line, kind, 0, 0, 0},
            [&](int page, int pages, AspWebAppErrorCodes pageError) {
                if (page > 0)
                    shown.show(QStringLiteral("Reading the calls of line %1: page %2 of %3")
                                   .arg(line)
                                   .arg(page)
                                   .arg(pages));
                if (firstError == AspWebAppNoError)
                    firstError = pageError;
            },
            error);
        // The library leaves out a page that fails, and reads a log whose length the gateway
        // refuses to tell as empty; a log with a hole is none to be relied on.
        if (firstError != AspWebAppNoError)
            error = firstError;
        return calls;
    };
    QList<LoggedCall> logged;
    const auto calls = gateway.ask(QStringLiteral("read the calls of line %1").arg(line), read);
    for (const AspVoipCallHistory& call : calls) {
        if (!isEmpty(call))
            logged.append({line, call});
    }
    return logged;
}

void print(const Session& session, QList<LoggedCall> calls, bool csv)
{
    const auto newer = [](const LoggedCall& one, const LoggedCall& other) {
        return one.call.time > other.call.time;
    };
    // Programs get the gateway's order, people what they look for first.
    if (!csv && !session.options.json)
        std::stable_sort(calls.begin(), calls.end(), newer);
    QList<Record> records;
    for (const LoggedCall& logged : qAsConst(calls))
        records.append(recordOf(logged));
    if (csv)
        session.output().printCsv(recordOf(LoggedCall()), records);
    else
        session.output().print(records, QStringLiteral("No calls."));
}

void history(Session& session, const Wanted& wanted)
{
    if (wanted.csv && session.options.json)
        throw Failure{WrongUsage, QStringLiteral("--csv excludes --json")};
    Gateway& gateway = session.gateway();
    expectNewerTelephony(gateway);
    const QList<int> lines = wanted.line < 0 ? linesOf(gateway) : QList<int>{wanted.line};
    QList<LoggedCall> calls;
    for (const int line : lines)
        calls += readCalls(gateway, line, wanted.kind);
    if (wanted.line >= 0 && calls.isEmpty())
        expectLine(gateway, wanted.line);
    print(session, calls, wanted.csv);
}

} // namespace

void addPhoneHistory(commandline::Command group, Session& session)
{
    auto command = group.addCommand("history", "List the calls, the newest first");
    const auto wanted = std::make_shared<Wanted>();
    command.addOption("--line", wanted->line, "Calls of this line only").notNegative();
    command
        .addOption("--kind", wanted->kind,
                   "Calls of this kind only, in the gateway's numbering; 3 stands for all")
        .notNegative();
    command.addFlag("--csv", wanted->csv, "Print CSV in the gateway's order instead of a table");
    command.callback([&session, wanted] { history(session, *wanted); });
}

} // namespace quorvelctl
