#include "ScenarioFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <set>

// Resources of a static library stay out of a program unless something asks for them by name,
// and that can't be done from within a namespace.
static void useBuiltInScenarios()
{
    Q_INIT_RESOURCE(scenarios);
}

namespace quorvel::simulator
{

namespace
{

QString programFolder()
{
    // QCoreApplication knows it too, but a program need not have one.
    return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
}

// The folders that may hold scenarios, those that come first win.
QStringList folders()
{
    useBuiltInScenarios();
    QStringList result;
    const QString chosen = qEnvironmentVariable("QUORVEL_SCENARIO_DIR");
    if (!chosen.isEmpty())
        result.append(chosen);
    result.append(programFolder() + QStringLiteral("/../share/quorvel/scenarios"));
    result.append(QStringLiteral(":/quorvel/scenarios"));
    return result;
}

QString fileOf(const QString& nameOrPath)
{
    if (nameOrPath.contains(QLatin1Char('/')) || nameOrPath.endsWith(QLatin1String(".json")))
        return nameOrPath;
    for (const QString& folder : folders()) {
        const QString path = folder + QLatin1Char('/') + nameOrPath + QStringLiteral(".json");
        if (QFile::exists(path))
            return path;
    }
    return {};
}

std::string joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

std::optional<Scenario> failure(const std::string& reason, std::string* error)
{
    if (error)
        *error = reason;
    return std::nullopt;
}

} // namespace

std::optional<Scenario> Scenario::load(const std::string& nameOrPath, std::string* error)
{
    return loadScenario(nameOrPath, 0, error);
}

std::optional<Scenario> loadScenario(const std::string& nameOrPath, int above, std::string* error)
{
    const QString path = fileOf(QString::fromStdString(nameOrPath));
    if (path.isEmpty()) {
        return failure(
            "there is no scenario '" + nameOrPath + "', only " + joined(Scenario::names()), error);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failure(path.toStdString() + ": " + file.errorString().toStdString(), error);
    }
    auto scenario = readScenario(file.readAll().toStdString(), path.toStdString(), above, error);
    if (scenario)
        scenario->name = QFileInfo(path).completeBaseName().toStdString();
    return scenario;
}

std::optional<Scenario> Scenario::fromDump(const std::string& path, std::string* error)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return failure(path + ": " + file.errorString().toStdString(), error);
    const QJsonValue scenario =
        QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("scenario"));
    if (!scenario.isObject())
        return failure(path + ": is no dump of a gateway", error);
    return readScenario(QJsonDocument(scenario.toObject()).toJson().toStdString(), path, 0, error);
}

std::vector<std::string> Scenario::names()
{
    std::set<std::string> found;
    for (const QString& folder : folders()) {
        for (const QFileInfo& file :
             QDir(folder).entryInfoList({QStringLiteral("*.json")}, QDir::Files))
            found.insert(file.completeBaseName().toStdString());
    }
    return {found.begin(), found.end()};
}

} // namespace quorvel::simulator
