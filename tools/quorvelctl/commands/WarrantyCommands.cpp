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

const struct {
    const char* key;
    const char* heading;
    QString AspDeviceWarrantyInformation::*text;
} fields[] = {{"name", "Name", &AspDeviceWarrantyInformation::name},
              {"email", "Mail", &AspDeviceWarrantyInformation::email},
              {"phone", "Phone", &AspDeviceWarrantyInformation::phone},
              {"token", "Token", &AspDeviceWarrantyInformation::token},
              {"usertoken", "User token", &AspDeviceWarrantyInformation::usertoken},
              {"timestamp", "Time stamp", &AspDeviceWarrantyInformation::timestamp}};

AspDeviceWarrantyInformation read(Gateway& gateway)
{
    return gateway.ask(QStringLiteral("read the warranty record"), [&](auto& error) {
        return gateway.general().getWarrantyInformation(error);
    });
}

void show(Session& session)
{
    const AspDeviceWarrantyInformation info = read(session.gateway());
    Record record;
    for (const auto& field : fields)
        record.append(
            {QString::fromLatin1(field.key), QString::fromLatin1(field.heading), info.*field.text});
    session.output().print(record);
}

void set(Session& session, const std::map<std::string, std::string>& given)
{
    if (given.empty())
        throw Failure{WrongUsage, QStringLiteral("name at least one text of the record")};
    Gateway& gateway = session.gateway();
    // The gateway replaces the whole record, so what isn't named is written back as it is.
    AspDeviceWarrantyInformation info = read(gateway);
    for (const auto& field : fields) {
        const auto text = given.find(field.key);
        if (text != given.end())
            info.*field.text = QString::fromStdString(text->second);
    }
    gateway.demand(QStringLiteral("write the warranty record"), [&](auto& error) {
        return gateway.general().setWarrantyInformation(info, error);
    });
    session.output().printDone(QStringLiteral("The warranty record is stored."));
}

} // namespace

void addWarrantyCommands(CLI::App& app, Session& session)
{
    auto* group = app.add_subcommand("warranty", "Show or change the gateway's warranty record");
    group->add_subcommand("show", "Show the warranty record")->callback([&session] {
        show(session);
    });
    auto* write = group->add_subcommand("set", "Change texts of the warranty record");
    const auto given = std::make_shared<std::map<std::string, std::string>>();
    for (const auto& field : fields)
        write->add_option_function<std::string>(
            std::string("--") + field.key,
            [given, key = std::string(field.key)](const std::string& text) {
                (*given)[key] = text;
            },
            std::string("New text of the field ") + field.key);
    write->callback([&session, given] { set(session, *given); });
}

} // namespace quorvelctl
