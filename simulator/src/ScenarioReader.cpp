#include "ScenarioFiles.h"
#include "WebApp.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>

namespace quorvel::simulator
{

namespace
{

/// The first thing that is wrong with a scenario; reading goes on, but nothing is used.
class Problems
{
public:
    explicit Problems(const std::string& origin) : origin(origin) {}

    void add(const QString& place, const std::string& problem)
    {
        addWhole(origin + ": " + (place.isEmpty() ? "" : place.toStdString() + ": ") + problem);
    }

    /// A problem that says itself where it is.
    void addWhole(const std::string& problem)
    {
        if (first.empty())
            first = problem;
    }

    const std::string& text() const { return first; }

private:
    const std::string origin;
    std::string first;
};

QString below(const QString& place, const QString& key)
{
    return place.isEmpty() ? key : place + QLatin1Char('.') + key;
}

std::string readText(const QJsonValue& value, const QString& place, Problems& problems)
{
    if (!value.isString())
        problems.add(place, "must be a text in quotes");
    return value.toString().toStdString();
}

int readCount(const QJsonValue& value, const QString& place, Problems& problems)
{
    const int number = value.toInt(-1);
    if (number < 0)
        problems.add(place, "must be a whole number, not negative");
    return number;
}

// `{"sip": {"user": "x"}}` is the key `sip.user`, `{"client": [{"mac": "x"}]}` is `client0.mac`.
void readValues(const QJsonValue& value, const QString& place, const QString& key, Values& values,
                Problems& problems)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto entry = object.begin(); entry != object.end(); ++entry)
            readValues(entry.value(), below(place, entry.key()), below(key, entry.key()), values,
                       problems);
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            readValues(array[i], place + QString::number(i), key + QString::number(i), values,
                       problems);
    } else {
        values[key.toStdString()] = readText(value, place, problems);
    }
}

QJsonObject readObject(const QJsonValue& value, const QString& place, Problems& problems)
{
    if (!value.isObject())
        problems.add(place, "must be an object in braces");
    return value.toObject();
}

Values readFlat(const QJsonValue& value, const QString& place, Problems& problems)
{
    Values values;
    readValues(readObject(value, place, problems), place, {}, values, problems);
    return values;
}

// Values that are JSON themselves, for the few that a gateway tells in that form.
Values readDocuments(const QJsonValue& value, const QString& place, Problems& problems)
{
    Values values;
    const QJsonObject documents = readObject(value, place, problems);
    for (auto document = documents.begin(); document != documents.end(); ++document) {
        const QJsonObject content =
            readObject(document.value(), below(place, document.key()), problems);
        values[document.key().toStdString()] =
            QJsonDocument(content).toJson(QJsonDocument::Compact).toStdString();
    }
    return values;
}

// What a base has under other keys stays.
void replace(Values& values, const Values& changes)
{
    for (const auto& [key, value] : changes)
        values[key] = value;
}

void readParts(const QJsonObject& parts, const QString& place, const std::string& instance,
               Scenario& scenario, Problems& problems)
{
    for (auto part = parts.begin(); part != parts.end(); ++part) {
        const QString where = below(place, part.key());
        if (part.key() == QLatin1String("configuration"))
            replace(scenario.configuration[instance], readFlat(part.value(), where, problems));
        else if (part.key() == QLatin1String("status"))
            replace(scenario.status[instance], readFlat(part.value(), where, problems));
        else if (part.key() == QLatin1String("documents"))
            replace(scenario.status[instance], readDocuments(part.value(), where, problems));
        else
            problems.add(where, "is neither configuration nor status nor documents");
    }
}

void readObjects(const QJsonValue& value, const QString& place, Scenario& scenario,
                 Problems& problems)
{
    const QJsonObject objects = readObject(value, place, problems);
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        const std::string instance = object.key().toStdString();
        const QString where = below(place, object.key());
        scenario.configuration[instance];
        readParts(readObject(object.value(), where, problems), where, instance, scenario, problems);
    }
}

void readLogin(const QJsonValue& value, const QString& place, Scenario& scenario,
               Problems& problems)
{
    const QJsonObject login = readObject(value, place, problems);
    scenario.user =
        readText(login[QLatin1String("user")], below(place, QStringLiteral("user")), problems);
    // Both places where a gateway keeps it.
    const std::string password = readText(login[QLatin1String("password")],
                                          below(place, QStringLiteral("password")), problems);
    for (const char* holder : {"webui-0", "sysmgr-0"})
        scenario.configuration[holder]["password"] = password;
}

void readSessions(const QJsonValue& value, const QString& place, Scenario& scenario,
                  Problems& problems)
{
    const QJsonObject sessions = readObject(value, place, problems);
    for (auto entry = sessions.begin(); entry != sessions.end(); ++entry) {
        const QString where = below(place, entry.key());
        const int number = readCount(entry.value(), where, problems);
        if (entry.key() == QLatin1String("number"))
            scenario.sessionNumber = number;
        else if (entry.key() == QLatin1String("requests"))
            scenario.sessionRequests = number;
        else
            problems.add(where, "is no key of sessions");
    }
}

void readManagers(const QJsonValue& value, const QString& place, Scenario& scenario,
                  Problems& problems)
{
    if (!value.isArray())
        problems.add(place, "must be a list in brackets");
    scenario.managers.clear();
    for (const QJsonValue& manager : value.toArray())
        scenario.managers.push_back(readText(manager, place, problems));
}

void readDialect(const QJsonValue& value, const QString& place, Scenario& scenario,
                 Problems& problems)
{
    scenario.dialect = readText(value, place, problems);
    if (scenario.dialect != "1.0.0" && scenario.dialect != "1.0.1")
        problems.add(place, R"(must be "1.0.0" or "1.0.1")");
}

void readTemplates(const QJsonValue& value, const QString& place, Scenario& scenario,
                   Problems& problems)
{
    const QJsonObject templates = readObject(value, place, problems);
    for (auto entry = templates.begin(); entry != templates.end(); ++entry) {
        scenario.templates[entry.key().toStdString()] =
            readFlat(entry.value(), below(place, entry.key()), problems);
    }
}

RecordedReply readReply(const QJsonObject& reply, const QString& place, Problems& problems)
{
    RecordedReply read;
    for (auto entry = reply.begin(); entry != reply.end(); ++entry) {
        const QString where = below(place, entry.key());
        if (entry.key() == QLatin1String("request"))
            read.request = readText(entry.value(), where, problems);
        else if (entry.key() == QLatin1String("status"))
            read.status = readCount(entry.value(), where, problems);
        else if (entry.key() == QLatin1String("body"))
            read.body = readText(entry.value(), where, problems);
        else
            problems.add(where, "is no key of a reply");
    }
    Request request;
    if (readRequest(read.request, request) != ErrorCode::None)
        problems.add(below(place, QStringLiteral("request")), "must be the XML of a request");
    return read;
}

void readReplies(const QJsonValue& value, const QString& place, Scenario& scenario,
                 Problems& problems)
{
    if (!value.isArray())
        problems.add(place, "must be a list in brackets");
    scenario.replies.clear();
    const QJsonArray replies = value.toArray();
    for (const QJsonValue& reply : replies) {
        const QString where = place + QString::number(scenario.replies.size());
        scenario.replies.push_back(readReply(readObject(reply, where, problems), where, problems));
    }
}

using Reader = std::function<void(const QJsonValue&, const QString&, Scenario&, Problems&)>;

struct TopLevelKey {
    const char* name;
    bool required;
    Reader read;
};

const std::vector<TopLevelKey>& topLevel()
{
    static const std::vector<TopLevelKey> keys{
        {"description", false,
         [](const auto& value, const auto& place, auto& scenario, auto& problems) {
             scenario.description = readText(value, place, problems);
         }},
        {"dialect", true, readDialect},
        // Before the login, which adds the password to objects that are read here.
        {"objects", true, readObjects},
        {"login", true, readLogin},
        {"sessions", false, readSessions},
        {"reboot_time_ms", false,
         [](const auto& value, const auto& place, auto& scenario, auto& problems) {
             scenario.rebootTime = readCount(value, place, problems);
         }},
        {"managers", true, readManagers},
        {"list_keys", false,
         [](const auto& value, const auto& place, auto& scenario, auto& problems) {
             scenario.listKeys = readFlat(value, place, problems);
         }},
        {"environment", false,
         [](const auto& value, const auto& place, auto& scenario, auto& problems) {
             scenario.environment = readFlat(value, place, problems);
         }},
        {"templates", false, readTemplates},
        {"replies", false, readReplies},
    };
    return keys;
}

// The scenario to which all else is added.
void readBase(const QJsonValue& value, const QString& place, int above, Scenario& scenario,
              Problems& problems)
{
    std::string error;
    const std::string name = readText(value, place, problems);
    if (above == highestStack)
        problems.add(place, "stands on too many others, or on itself");
    else if (auto base = loadScenario(name, above + 1, &error))
        scenario = *base;
    else
        problems.addWhole(error);
}

void readTopLevel(const QJsonObject& root, int above, Scenario& scenario, Problems& problems)
{
    QStringList known{QStringLiteral("base")};
    const bool based = root.contains(known.first());
    if (based)
        readBase(root[known.first()], known.first(), above, scenario, problems);
    for (const TopLevelKey& key : topLevel()) {
        known.append(QString::fromLatin1(key.name));
        if (root.contains(known.last()))
            key.read(root[known.last()], known.last(), scenario, problems);
        else if (key.required && !based)
            problems.add(known.last(), "is missing");
    }
    for (const QString& key : root.keys()) {
        if (!known.contains(key))
            problems.add(key, "is no key of a scenario");
    }
}

// Objects that every gateway has, whether the scenario has anything to say of them or not.
void addFixedObjects(Scenario& scenario)
{
    for (const char* instance : {"cfgmgr-0", "devmgr-0", "sysmgr-0", "webui-0"})
        scenario.configuration[instance];
}

int lineOf(const QByteArray& json, int offset)
{
    return json.left(offset).count('\n') + 1;
}

} // namespace

std::optional<Scenario> Scenario::fromJson(const std::string& json, const std::string& origin,
                                           std::string* error)
{
    return readScenario(json, origin, 0, error);
}

std::optional<Scenario> readScenario(const std::string& json, const std::string& origin, int above,
                                     std::string* error)
{
    Problems problems(origin);
    const auto bytes = QByteArray::fromStdString(json);
    QJsonParseError syntax;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &syntax);
    if (syntax.error != QJsonParseError::NoError) {
        problems.add(QStringLiteral("line %1").arg(lineOf(bytes, syntax.offset)),
                     syntax.errorString().toStdString());
    }
    const QJsonObject root = document.object();
    if (problems.text().empty() && !document.isObject())
        problems.add({}, "must be an object in braces");
    Scenario scenario;
    readTopLevel(root, above, scenario, problems);
    addFixedObjects(scenario);
    scenario.name.clear();
    if (problems.text().empty())
        return scenario;
    if (error)
        *error = problems.text();
    return std::nullopt;
}

} // namespace quorvel::simulator
