#include "Failure.h"
#include "Words.h"
#include "commands/Commands.h"
#include "commands/Readings.h"

#include <QDateTime>
#include <QThread>
#include <atomic>
#include <csignal>
#include <memory>
#include <sstream>
#include <unistd.h>
#include <vector>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

using Handle = AspCpeFacadeObject;

struct Column {
    const char* key;
    const char* heading;
};

/// What is watched together: chosen values of what a command reads.
struct Section {
    const char* key;
    const char* command;
    /// Where in the result the things stand; null for the result itself.
    const char* part;
    bool (*applies)(Handle& gateway);
    std::vector<Column> columns;
};

const std::vector<Section>& sections()
{
    static const std::vector<Section> all{{"connection",
                                           "wan status",
                                           nullptr,
                                           [](Handle& gateway) { return gateway.hasWan(); },
                                           {{"internet", "Internet"},
                                            {"defaultWan", "Default WAN"},
                                            {"inUse", "In use"},
                                            {"dslLink", "DSL link is up"},
                                            {"ethLink", "Ethernet link is up"}}},
                                          {"wans",
                                           "wan list",
                                           nullptr,
                                           [](Handle& gateway) { return gateway.hasWan(); },
                                           {{"wan", "WAN"},
                                            {"connectionType", "Layer 2"},
                                            {"linkType", "Link type"},
                                            {"enabled", "Enabled"},
                                            {"isConnected", "Connected"},
                                            {"localIp", "IP address"}}},
                                          {"radios",
                                           "wifi list",
                                           nullptr,
                                           [](Handle& gateway) { return gateway.hasWireless(); },
                                           {{"radio", "Radio"},
                                            {"state", "State"},
                                            {"ssid", "Network"},
                                            {"security", "Security mode"},
                                            {"band", "Band"}}},
                                          {"lines",
                                           "phone accounts",
                                           "accounts",
                                           // Older telephony doesn't tell of its lines.
                                           [](Handle& gateway) {
                                               return gateway.getCpeProperties().voipVersion ==
                                                      QLatin1String("2");
                                           },
                                           {{"line", "Line"},
                                            {"kind", "Kind"},
                                            {"enabled", "Enabled"},
                                            {"state", "State"},
                                            {"name", "Name"},
                                            {"number", "Number"}}}};
    return all;
}

/// The state of a gateway at one time.
struct Sight {
    QDateTime time;
    bool reachable = true;
    QJsonObject state; ///< by the keys of the sections
    QStringList errors;
};

/// The values that are watched of one thing.
Record chosenFrom(const QJsonObject& thing, const Section& section)
{
    Record record;
    for (const Column& column : section.columns)
        record.append(plainField(column.key, column.heading, thing.value(word(column.key))));
    return record;
}

/// What the gateway doesn't tell isn't shown of it.
QJsonObject toldOf(const QJsonObject& thing, const Section& section)
{
    QJsonObject told;
    for (const Field& field : chosenFrom(thing, section)) {
        if (!field.value.isUndefined() && !field.value.isNull())
            told.insert(field.key, field.value);
    }
    return told;
}

QJsonValue chosenFrom(const QJsonValue& result, const Section& section)
{
    if (!result.isArray())
        return toldOf(result.toObject(), section);
    QJsonArray chosen;
    for (const QJsonValue& thing : result.toArray())
        chosen.append(toldOf(thing.toObject(), section));
    return chosen;
}

/// Looks at the gateway once. Fails if it refuses the login: to go on would be to guess passwords.
Sight look(Session& session)
{
    Sight sight{QDateTime::currentDateTime(), true, {}, {}};
    Handle& handle = session.gateway().object();
    for (const Section& section : sections()) {
        if (!section.applies(handle))
            continue;
        try {
            const QJsonValue result = readingOf(word(section.command), session);
            sight.state.insert(
                word(section.key),
                chosenFrom(section.part ? result[word(section.part)] : result, section));
        } catch (const Failure& failure) {
            if (failure.status == LoginRefused)
                throw;
            sight.errors.append(failure.message);
            sight.reachable = failure.status != NotReachable;
            // Each further request would wait as long as this one did.
            if (!sight.reachable)
                break;
        }
    }
    return sight;
}

QString clockTime(const QDateTime& time)
{
    return time.toString(QStringLiteral("HH:mm:ss"));
}

/// Shows what is seen on a terminal, each sight in place of the last one.
class Screen
{
public:
    Screen(const QString& address, int intervalS) : address(address), intervalS(intervalS) {}

    void draw(const Sight& sight)
    {
        if (sight.reachable)
            away = QDateTime();
        else if (away.isNull())
            away = sight.time;
        std::ostringstream text;
        const Output output(false, false, text);
        output.printLine(QStringLiteral("%1 at %2, every %3 s; Ctrl-C ends")
                             .arg(address, clockTime(sight.time))
                             .arg(intervalS));
        if (!sight.reachable)
            output.printLine(QStringLiteral("NOT REACHABLE since %1").arg(clockTime(away)));
        for (const Section& section : sections())
            drawSection(section, sight, output);
        for (const QString& error : sight.errors) {
            output.printLine();
            output.printLine(QLatin1String("! ") + error);
        }
        show(QString::fromStdString(text.str()));
    }

private:
    /// Of a gateway that is away nothing is known, so nothing is shown.
    static void drawSection(const Section& section, const Sight& sight, const Output& output)
    {
        const QJsonValue seen = sight.state.value(word(section.key));
        if (seen.isUndefined() || !sight.reachable)
            return;
        output.printLine();
        if (seen.isObject()) {
            Record record;
            for (const Field& field : chosenFrom(seen.toObject(), section)) {
                if (!field.value.isUndefined())
                    record.append(field);
            }
            output.print(record);
            return;
        }
        QList<Record> records;
        const QJsonArray things = seen.toArray();
        for (const QJsonValue& thing : things)
            records.append(chosenFrom(thing.toObject(), section));
        output.print(records, QStringLiteral("No %1.").arg(word(section.key)));
    }

    /// From the upper left corner on, each line to its end, and nothing below: so it doesn't
    /// flicker.
    void show(QString text)
    {
        text.replace(QLatin1Char('\n'), QLatin1String("\33[K\n"));
        std::cout << (isFirst ? "\33[2J" : "") << "\33[H" << text.toStdString() << "\33[J";
        isFirst = false;
    }

    const QString address;
    const int intervalS;
    QDateTime away;
    bool isFirst = true;
};

void printAsLine(const Sight& sight, const Output& output)
{
    QJsonObject line = sight.state;
    line.insert(word("time"), sight.time.toUTC().toString(Qt::ISODate));
    line.insert(word("reachable"), sight.reachable);
    line.insert(word("errors"), QJsonArray::fromStringList(sight.errors));
    output.printJsonLine(line);
}

std::atomic<bool> printing{false};
std::atomic<bool> ended{false};

/// Ends the program at once and well, whatever it waits for; but not within a line.
void endWatching(int)
{
    if (!printing)
        _exit(Success);
    ended = true;
}

void endOnSignals()
{
    struct sigaction action = {};
    action.sa_handler = endWatching;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

struct Wanted {
    int intervalS = 5;
    int count = 0; ///< 0: without end
};

void watch(Session& session, const Wanted& wanted)
{
    Screen screen(session.gateway().address(), wanted.intervalS);
    const bool draws = isatty(STDOUT_FILENO) == 1 && !session.options.json;
    endOnSignals();
    for (int round = 1;; ++round) {
        const Sight sight = look(session);
        printing = true;
        if (draws)
            screen.draw(sight);
        else
            printAsLine(sight, session.output());
        if (!std::cout.flush())
            throw Failure{GatewayFailed, word("can't write the result")};
        printing = false;
        if (ended || round == wanted.count)
            return;
        QThread::sleep(static_cast<unsigned long>(wanted.intervalS));
    }
}

} // namespace

void addWatchCommand(commandline::Command program, Session& session)
{
    auto command = program.addCommand(
        "watch", "Show the state of connection, radios and lines until it is interrupted");
    const auto wanted = std::make_shared<Wanted>();
    command.addOption("--interval", wanted->intervalS, "Seconds between two looks")
        .valueName("SECONDS")
        .between(1, 86400)
        .showDefault();
    command.addOption("--count", wanted->count, "End after so many looks")
        .valueName("NUMBER")
        .positive();
    command.callback([&session, wanted] { watch(session, *wanted); });
}

} // namespace quorvelctl
