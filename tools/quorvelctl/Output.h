#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <iostream>

namespace quorvelctl
{

/// One value that a command shows: under a heading on a terminal, under a key as JSON.
struct Field {
    QString key;
    QString heading;
    QJsonValue value;
    bool secret = false;
};

/// What is shown of one thing, in order.
using Record = QList<Field>;

/// Things of one kind; `none` is what people read if there are none.
struct Table {
    QString key;
    QList<Record> records;
    QString none;
};

/// A value that is shown as it is.
Field plainField(const char* key, const char* heading, const QJsonValue& value);

/// Marks a value that is shown only on demand.
Field secretField(const QString& key, const QString& heading, const QString& value);

/// A text without the control characters with which a hostile gateway could drive a terminal, but
/// for those in `harmless`.
QString printable(const QString& text, const QString& harmless = QString());

/// Writes results to standard output or elsewhere, for people or as JSON.
class Output
{
public:
    Output(bool json, bool showSecrets, std::ostream& out = std::cout)
        : json(json), showSecrets(showSecrets), out(&out)
    {
    }

    /// One thing: a line per value, or an object.
    void print(const Record& record) const;
    /// Things of one kind: a table, or an array of objects. `none` is what people read if there
    /// are none.
    void print(const QList<Record>& records, const QString& none) const;
    /// Things of several kinds: a table each, or an object of their arrays.
    void printTables(const QList<Table>& tables) const;
    /// A thing and its parts, which JSON has under a key: a line per value, and after an empty line
    /// those of each part.
    void print(const Record& whole, const QString& partsKey, const QList<Record>& parts,
               const QString& none) const;
    /// Things of one kind as CSV, under the keys of `example`.
    void printCsv(const Record& example, const QList<Record>& records) const;
    /// Things with too many values for a table: a block of lines for each, or an array of objects.
    void printEach(const QList<Record>& records) const;
    /// For people only: a line of text, or an empty one between what is printed.
    void printLine(const QString& line = QString()) const;
    /// For people only: lines that are drawn, colours included.
    void printPicture(const QString& lines) const;
    /// What is JSON, whoever reads it.
    void printDocument(const QJsonObject& document) const;
    /// The same as a line of a stream of them.
    void printJsonLine(const QJsonObject& object) const;
    /// What a command did: a sentence, or an object with "done".
    void printDone(const QString& sentence) const;

    /// The record as an object, with secrets hidden if they are to be.
    QJsonObject toJson(const Record& record) const;

private:
    QJsonArray toJson(const QList<Record>& records) const;
    QJsonValue shown(const Field& field) const;
    QString textOf(const Field& field) const;

    bool json;
    bool showSecrets;
    std::ostream* out;
};

} // namespace quorvelctl
