#include "Failure.h"
#include "Session.h"
#include "commands/Commands.h"

#include <map>
#include <memory>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

using Info = AspDeviceWarrantyInformation;

const struct Text {
    const char* key;
    const char* heading;
    QString Info::*text;
    /// The environment variable of one that is a secret; null for the others.
    const char* variable = nullptr;
} texts[] = {{"name", "Name", &Info::name},
             {"email", "Mail", &Info::email},
             {"phone", "Phone", &Info::phone},
             {"token", "Token", &Info::token, "QUORVELCTL_TOKEN"},
             {"usertoken", "User token", &Info::usertoken, "QUORVELCTL_USERTOKEN"},
             {"timestamp", "Time stamp", &Info::timestamp}};

/// What is to be written: texts, and where secrets come from.
struct Given {
    std::map<std::string, std::string> texts;
    std::map<std::string, SecretSource> secrets;
};

Info read(Gateway& gateway)
{
    return gateway.ask(QStringLiteral("read the warranty record"), [&](auto& error) {
        return gateway.general().getWarrantyInformation(error);
    });
}

void show(Session& session)
{
    const Info info = read(session.gateway());
    Record record;
    for (const Text& text : texts)
        record.append({QString::fromLatin1(text.key), QString::fromLatin1(text.heading),
                       info.*text.text, text.variable != nullptr});
    session.output().print(record);
}

/// The texts that are given, secrets among them; an empty one clears what the gateway has.
std::map<std::string, QString> newTexts(Session& session, const Given& given)
{
    std::map<std::string, QString> found;
    for (const auto& [key, text] : given.texts)
        found[key] = QString::fromStdString(text);
    for (const auto& [key, source] : given.secrets) {
        if (source.isGiven())
            found[key] = session.readSecret(source);
    }
    if (found.empty())
        throw Failure{WrongUsage, QStringLiteral("name at least one text of the record")};
    return found;
}

void set(Session& session, const Given& given)
{
    const auto changed = newTexts(session, given);
    Gateway& gateway = session.gateway();
    // The gateway replaces the whole record, so what isn't named is written back as it is.
    Info info = read(gateway);
    for (const Text& text : texts) {
        const auto change = changed.find(text.key);
        if (change != changed.end())
            info.*text.text = change->second;
    }
    gateway.demand(QStringLiteral("write the warranty record"), [&](auto& error) {
        return gateway.general().setWarrantyInformation(info, error);
    });
    session.output().printDone(QStringLiteral("The warranty record is stored."));
}

} // namespace

void addWarrantyCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("warranty", "Show or change the gateway's warranty record");
    group.addCommand("show", "Show the warranty record").callback([&session] { show(session); });
    auto write = group.addCommand("set", "Change texts of the warranty record");
    const auto given = std::make_shared<Given>();
    for (const Text& text : texts) {
        const std::string key = text.key;
        if (text.variable)
            given->secrets[key].addTo(write, key, text.variable, key);
        else
            write.addOption(
                "--" + key, [given, key](const std::string& words) { given->texts[key] = words; },
                "New text of the field " + key);
    }
    write.callback([&session, given] { set(session, *given); });
}

} // namespace quorvelctl
