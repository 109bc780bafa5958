#include "fuzz/ReferenceXml.h"
#include "fuzz/Require.h"
#include "protocol/AspRequestFormatterV1.h"
#include "protocol/AspRequestFormatterV2.h"

#include <QStringList>
#include <QVector>
#include <algorithm>

/// \file
/// Commands through the formatters, and back through another XML parser: what XML can carry must
/// arrive as it was queued. An input is a list of commands, each of them a verb's first letter, an
/// instance, a key and a value; ASCII's record and unit separators stand between them.

namespace quorvel::fuzz
{

namespace
{

using Add = void (RequestFormatter::*)(const QString&, const QString&, const QString&);

struct Verb {
    QString name;
    Add add;
};

const Verb verbs[] = {{QStringLiteral("query"), &RequestFormatter::addQuery},
                      {QStringLiteral("command"), &RequestFormatter::addCommand},
                      {QStringLiteral("get"), &RequestFormatter::addGet},
                      {QStringLiteral("set"), &RequestFormatter::addSet}};

struct Command {
    const Verb& verb;
    QString inst;
    QString key;
    QString value;
};

using Commands = std::vector<Command>;

const Verb& verbNamed(const QString& letter)
{
    const auto found = std::find_if(std::begin(verbs), std::end(verbs), [&](const Verb& verb) {
        return verb.name.startsWith(letter.at(0));
    });
    return found == std::end(verbs) ? verbs[0] : *found;
}

Commands commandsIn(const QString& input)
{
    Commands commands;
    for (const QString& record : input.split(QChar(0x1e))) {
        const QStringList fields = record.split(QChar(0x1f));
        if (!fields[0].isEmpty())
            commands.push_back(
                {verbNamed(fields[0]), fields.value(1), fields.value(2), fields.value(3)});
    }
    return commands;
}

/// Whether XML has a way to write the text.
bool isCarried(const QString& text)
{
    const QVector<uint> characters = text.toUcs4();
    return std::all_of(characters.cbegin(), characters.cend(), [](uint character) {
        return character == 0x9 || character == 0xa || character == 0xd ||
               (character >= 0x20 && character < 0xd800) ||
               (character >= 0xe000 && character < 0xfffe) || character >= 0x10000;
    });
}

void queue(RequestFormatter& formatter, Commands::const_iterator first,
           Commands::const_iterator last)
{
    for (auto command = first; command != last; ++command)
        (formatter.*command->verb.add)(command->inst, command->key, command->value);
}

void expectCarried(QString request, const char* version, const Commands& commands)
{
    if (faultIsPlanted())
        request.replace(QLatin1String("&lt;"), QLatin1String("<"));
    const ReferenceDocument document = readReference(request.toUtf8());
    require(document.wellFormed, "a request is well-formed");
    require(document.root == QLatin1String("xmlrequest"), "its root is xmlrequest");
    require(document.version == QLatin1String(version), "it names the dialect");
    require(document.branches.size() == commands.size(), "it has an element per command");
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const Branch& branch = document.branches[i];
        const auto& [verb, inst, key, value] = commands[i];
        require(branch.name == verb.name, "a verb arrives");
        require(branch.attributes == Pairs{{QStringLiteral("inst"), inst}}, "an instance arrives");
        require(branch.leaves ==
                    Pairs{{QStringLiteral("key"), key}, {QStringLiteral("value"), value}},
                "a key and a value arrive");
    }
}

/// Formats all commands as one request.
QString requestOf(RequestFormatter& formatter, const Commands& commands)
{
    queue(formatter, commands.cbegin(), commands.cend());
    const QString request = formatter.formatRequest();
    require(readReference(formatter.formatRequest().toUtf8()).branches.empty(),
            "a formatter forgets what it has formatted");
    return request;
}

/// Formats the commands in two halves, as for two radios, and joins them.
QString joinedRequestOf(const Commands& commands)
{
    AspRequestFormatterV2 first;
    AspRequestFormatterV2 second;
    const auto middle = commands.cbegin() + commands.size() / 2;
    queue(first, commands.cbegin(), middle);
    queue(second, middle, commands.cend());
    const QString firstHalf = first.formatCommands();
    return first.wrapCommands(firstHalf + second.formatCommands());
}

bool areCarried(const Commands& commands)
{
    return std::all_of(commands.cbegin(), commands.cend(), [](const Command& command) {
        return isCarried(command.inst) && isCarried(command.key) && isCarried(command.value);
    });
}

} // namespace

} // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace quorvel;
    using namespace quorvel::fuzz;
    const Commands commands =
        commandsIn(QString::fromUtf8(reinterpret_cast<const char*>(data), int(size)));
    AspRequestFormatterV1 older;
    AspRequestFormatterV2 newer;
    const QString olderRequest = requestOf(older, commands);
    const QString newerRequest = requestOf(newer, commands);
    const QString joinedRequest = joinedRequestOf(commands);
    if (!areCarried(commands))
        return 0;
    expectCarried(olderRequest, "1.0.0", commands);
    expectCarried(newerRequest, "1.0.1", commands);
    // A half without commands has no text that can be joined.
    if (commands.size() >= 2)
        expectCarried(joinedRequest, "1.0.1", commands);
    return 0;
}
