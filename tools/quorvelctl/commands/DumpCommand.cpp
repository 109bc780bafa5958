#include "Failure.h"
#include "Masking.h"
#include "Recorder.h"
#include "Words.h"
#include "commands/Commands.h"
#include "commands/Readings.h"

#include <QMap>
#include <QRegularExpression>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

using Handle = AspCpeFacadeObject;

bool always(Handle&)
{
    return true;
}

bool hasConnections(Handle& gateway)
{
    return gateway.hasWan() && (gateway.hasDsl() || gateway.hasEth());
}

bool hasModem(Handle& gateway)
{
    return gateway.hasWan() && gateway.has3G();
}

bool hasNewerTelephony(Handle& gateway)
{
    return gateway.getCpeProperties().voipVersion == QLatin1String("2");
}

/// Things that were read before, each of which is to be asked for itself.
using Things = QStringList (*)(const QJsonObject& gateway);

QStringList wans(const QJsonObject& gateway)
{
    return namesIn(gateway.value(QLatin1String("wan")), "wan");
}

QStringList radiosOf(const QJsonObject& gateway, const char* generation)
{
    QStringList names;
    const QJsonArray radios = gateway.value(QLatin1String("wifi")).toArray();
    for (const QJsonValue& radio : radios) {
        if (radio[QLatin1String("generation")] == QLatin1String(generation))
            names.append(radio[QLatin1String("radio")].toString());
    }
    return names;
}

QStringList olderRadios(const QJsonObject& gateway)
{
    return radiosOf(gateway, "older");
}

QStringList newerRadios(const QJsonObject& gateway)
{
    return radiosOf(gateway, "newer");
}

/// A command that reads, and the key of its result.
struct Reading {
    const char* key;
    const char* command;
    bool (*applies)(Handle& gateway) = always;
    /// One reading for each of these, whose names end the command.
    Things things = nullptr;
};

const Reading readings[] = {
    {"info", "info"},
    {"features", "features"},
    {"hints", "hints"},
    {"managers", "managers"},
    {"clients", "clients"},
    {"warranty", "warranty show",
     [](Handle& gateway) { return gateway.hasWarrantyRegistrationSupport(); }},
    {"wan", "wan list", [](Handle& gateway) { return gateway.hasWan(); }},
    {"wanStatus", "wan status", [](Handle& gateway) { return gateway.hasWan(); }},
    {"wanDetails", "wan show", always, wans},
    {"internet", "internet show --all", hasConnections, wans},
    {"modem", "modem show", hasModem},
    {"wifi", "wifi show", [](Handle& gateway) { return gateway.hasWireless(); }},
    {"wifiWps", "wifi wps", [](Handle& gateway) { return gateway.hasWireless(); }},
    {"wifiMesh", "wifi mesh", [](Handle& gateway) { return gateway.hasWireless(); }},
    {"wifiSecurityModes", "wifi security-modes",
     [](Handle& gateway) { return gateway.hasWireless(); }},
    {"wifiClients", "wifi clients --radio", always, olderRadios},
    {"wifiCapabilities", "wifi capabilities --radio", always, newerRadios},
    {"phone", "phone accounts", [](Handle& gateway) { return gateway.hasVoip(); }},
    {"phoneHistory", "phone history", hasNewerTelephony},
    {"usb", "usb devices", [](Handle& gateway) { return gateway.hasUsbHost(); }},
    {"usbStatus", "usb status", [](Handle& gateway) { return gateway.hasUsbHost(); }},
    {"usbSharing", "usb sharing", [](Handle& gateway) { return gateway.hasUsbHost(); }}};

/// Reads everything; a reading that fails doesn't keep the others from being made.
class Dump
{
public:
    explicit Dump(Session& session) : session(session), recorder(session.login().cpeAddress)
    {
        session.reachVia(recorder.address());
    }

    void read()
    {
        Handle& handle = session.gateway().object();
        for (const Reading& reading : readings) {
            if (!reading.applies(handle))
                continue;
            const QString command = word(reading.command);
            const QJsonValue result =
                reading.things ? readEach(command, reading.things(gateway)) : read(command);
            if (!result.isUndefined())
                gateway.insert(word(reading.key), result);
        }
    }

    QJsonObject document()
    {
        return {{word("quorvelctl"), word(QUORVELCTL_VERSION)},
                {word("gateway"), clean(gateway)},
                {word("errors"), errors},
                {word("scenario"), scenario()}};
    }

    void expectNoErrors() const
    {
        if (!errors.isEmpty())
            throw Failure{firstStatus,
                          QStringLiteral("not everything could be read: %1 of the readings failed, "
                                         "see \"errors\"")
                              .arg(errors.size())};
    }

private:
    /// Undefined if it failed.
    QJsonValue read(const QString& command)
    {
        try {
            return readingOf(command, session);
        } catch (const Failure& failure) {
            if (errors.isEmpty())
                firstStatus = failure.status;
            errors.append(
                QJsonObject{{word("command"), command}, {word("message"), failure.message}});
            return QJsonValue(QJsonValue::Undefined);
        }
    }

    QJsonValue readEach(const QString& command, const QStringList& things)
    {
        QJsonObject results;
        for (const QString& thing : things) {
            const QJsonValue result = read(command + QLatin1Char(' ') + thing);
            if (!result.isUndefined())
                results.insert(thing, result);
        }
        return things.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(results);
    }

    QJsonValue clean(const QJsonValue& value) const
    {
        return session.options.showSecrets ? value : masked(value);
    }

    /// What a simulated gateway needs to answer the same requests with the same replies.
    QJsonObject scenario() const
    {
        const QJsonValue login =
            QJsonObject{{word("user"), word("admin")}, {word("password"), word("admin")}};
        const QString dialect =
            gateway.value(QLatin1String("features"))[QLatin1String("xml")].toString();
        return {{word("description"), word("A gateway that was dumped")},
                {word("dialect"), dialect},
                {word("login"), login},
                {word("managers"), QJsonArray()},
                {word("objects"), QJsonObject()},
                {word("replies"), replies()}};
    }

    QJsonArray replies() const
    {
        // A session that expired has nothing to do with the gateway, and its replay would have no
        // end if the request that was made again got lost.
        static const QRegularExpression expired(
            QStringLiteral("<webapp>\\s*(<error>|<key>error</key>\\s*<value>)\\s*1\\s*<"));
        QMap<QString, QJsonObject> last;
        QStringList order;
        for (const WebExchange& exchange : recorder.exchanges()) {
            if (expired.match(exchange.reply).hasMatch())
                continue;
            const bool shows = session.options.showSecrets;
            const QString request = shows ? exchange.request : maskedXml(exchange.request);
            if (!last.contains(request))
                order.append(request);
            last.insert(request,
                        {{word("request"), request},
                         {word("status"), exchange.status},
                         {word("body"), shows ? exchange.reply : maskedXml(exchange.reply)}});
        }
        QJsonArray replies;
        for (const QString& request : qAsConst(order))
            replies.append(last.value(request));
        return replies;
    }

    Session& session;
    Recorder recorder;
    QJsonObject gateway;
    QJsonArray errors;
    ExitStatus firstStatus = Success;
};

void dump(Session& session)
{
    Dump dump(session);
    dump.read();
    session.output().printDocument(dump.document());
    dump.expectNoErrors();
}

} // namespace

void addDumpCommand(commandline::Command program, Session& session)
{
    program
        .addCommand("dump", "Print everything that can be read as one JSON document, which "
                            "quorvel-gateway-sim --from-dump replays")
        .callback([&session] { dump(session); });
}

} // namespace quorvelctl
