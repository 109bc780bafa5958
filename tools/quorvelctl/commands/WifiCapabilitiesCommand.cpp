#include "commands/WifiCommands.h"

#include "Failure.h"
#include "Radios.h"
#include "Session.h"

#include <algorithm>

namespace quorvelctl
{

namespace
{

/// What a radio told of itself.
struct Tree {
    QString radio;
    boost::shared_ptr<Capabilities> root;
};

QString textOr(const QString& text, const QString& name)
{
    return text.isEmpty() ? name : text;
}

QJsonArray widthsOf(const Mode& mode)
{
    QJsonArray widths;
    if (const auto chanbws = mode.getChanbws()) {
        for (const auto& width : chanbws->getItems()) {
            const bool isDefault = width->getName() == mode.getDefaultChannelBw();
            widths.append(textOr(width->getText(), width->getName()) +
                          QLatin1String(isDefault ? " (default)" : ""));
        }
    }
    return widths;
}

QJsonArray securityModesOf(const Mode& mode)
{
    QJsonArray names;
    if (const auto securityModes = mode.getSecurityModes()) {
        for (const auto& securityMode : securityModes->getItems())
            names.append(securityMode->getName());
    }
    return names;
}

QList<Record> modesOf(const Ghz& band)
{
    QList<Record> records;
    if (const auto modes = band.getModes()) {
        for (const auto& mode : modes->getItems())
            records.append({plainField("mode", "Mode", mode->getName()),
                            plainField("text", "Name", mode->getText()),
                            plainField("widths", "Channel widths", widthsOf(*mode)),
                            plainField("securityModes", "Security modes", securityModesOf(*mode))});
    }
    return records;
}

/// By number, and not by name as the tree has them.
QList<Record> channelsOf(const Ghz& band)
{
    auto channels =
        band.getChannels() ? band.getChannels()->getItems() : QList<boost::shared_ptr<Channel>>();
    std::stable_sort(channels.begin(), channels.end(), [](const auto& one, const auto& other) {
        return one->getName().toInt() < other->getName().toInt();
    });
    QList<Record> records;
    for (const auto& channel : qAsConst(channels))
        records.append({plainField("channel", "Channel", channel->getName()),
                        plainField("freqVal", "Frequency", channel->getFreqVal()),
                        plainField("dfs", "DFS", channel->getDfs() != 0),
                        plainField("zenPair", "Pairing", channel->getZenPair() != 0),
                        plainField("show", "Shown", channel->getShow() != 0)});
    return records;
}

void draw(const Output& output, const QString& radio, const Ghz& band)
{
    output.printLine(QStringLiteral("%1, %2: default mode %3, default channel %4")
                         .arg(radio, textOr(band.getText(), band.getName()), band.getDefaultMode(),
                              band.getDefaultChannel()));
    output.printLine();
    output.print(modesOf(band), QStringLiteral("No modes."));
    output.printLine();
    output.print(channelsOf(band), QStringLiteral("No channels."));
}

void draw(const Output& output, const Tree& tree)
{
    const Band& bands = *tree.root->getBand();
    bool first = true;
    for (const auto& band : {bands.getGhz2400(), bands.getGhz5000()}) {
        if (!band)
            continue;
        if (!first)
            output.printLine();
        first = false;
        draw(output, tree.radio, *band);
    }
    if (first)
        output.printLine(
            QStringLiteral("%1: neither the 2.4 GHz band nor that of 5 GHz").arg(tree.radio));
}

void draw(const Output& output, const QList<Tree>& trees)
{
    for (const Tree& tree : trees) {
        if (&tree != &trees.first())
            output.printLine();
        draw(output, tree);
    }
}

void printAsJson(const Output& output, const QList<Tree>& trees)
{
    QList<Record> records;
    for (const Tree& tree : trees)
        records.append(
            {plainField("radio", "", tree.radio),
             plainField("capabilities", "", QJsonObject::fromVariantMap(tree.root->getData()))});
    output.print(records, QString());
}

void capabilities(Session& session, const std::string& name)
{
    QList<Tree> trees;
    QStringList silent;
    const QList<Radio> radios = Radios(session.gateway()).named(name);
    for (const Radio& radio : radios) {
        const auto root = radio.capabilities();
        if (root)
            trees.append({radio.name(), root});
        else
            silent.append(radio.name());
    }
    excuse(silent, radios.size(), "what the radio can do");
    if (session.options.json)
        printAsJson(session.output(), trees);
    else
        draw(session.output(), trees);
}

} // namespace

void addWifiCapabilities(commandline::Command group, Session& session)
{
    auto command = group.addCommand(
        "capabilities", "Show the modes, channel widths and channels of newer radios per band");
    const auto radio = addRadioOption(command);
    command.callback([&session, radio] { capabilities(session, *radio); });
}

} // namespace quorvelctl
