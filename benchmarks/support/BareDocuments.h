#pragma once

#include <QMap>
#include <QString>
#include <vector>

namespace quorvel::bench
{

/// The texts of a command.
struct CommandTexts {
    QString verb;
    QString inst;
    QString key;
    QString value;
};

/// `count` commands of a write, as a benchmark's input.
std::vector<CommandTexts> someCommands(int count);

/// The QDom work that formatting can't do without: the tree of a request with these commands,
/// written out.
QString bareWrite(const std::vector<CommandTexts>& commands);

/// The QDom work that flattening can't do without: a tree of the text, read with a reader and a
/// source of QtXml's own, and one walk over it that takes every object's name and every entry's
/// name and text. Nothing is joined or kept; the sum of the lengths is given back so that the walk
/// is not left out.
int bareRead(const QString& reply);

/// The same work, and the map that comes of it, made in the plainest way.
QMap<QString, QString> bareFlatten(const QString& reply);

} // namespace quorvel::bench
