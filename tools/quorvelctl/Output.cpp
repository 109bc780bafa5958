#include "Output.h"

#include "Secrets.h"

#include <QJsonDocument>
#include <QStringList>
#include <QVector>
#include <algorithm>
#include <ostream>

namespace quorvelctl
{

namespace
{

void writeLine(std::ostream& out, const QString& line)
{
    int length = line.size();
    while (length > 0 && line.at(length - 1) == QLatin1Char(' '))
        --length;
    out << line.left(length).toStdString() << '\n';
}

void writeRow(std::ostream& out, const QStringList& cells, const QVector<int>& widths)
{
    QString line;
    for (int i = 0; i < cells.size(); ++i)
        line += cells.at(i).leftJustified(widths.at(i) + 2);
    writeLine(out, line);
}

void writeJson(std::ostream& out, const QJsonDocument& document,
               QJsonDocument::JsonFormat format = QJsonDocument::Indented)
{
    // Qt escapes only the older half of the control characters.
    QString text;
    const QString json = QString::fromUtf8(document.toJson(format));
    for (const QChar character : json) {
        if (character.unicode() >= 0x7f && character.category() == QChar::Other_Control)
            text += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        else
            text += character;
    }
    out << text.toStdString();
}

/// Quoted only where the text would be torn apart otherwise.
QString csvCell(QString text)
{
    const QString parting = QStringLiteral("\",\r\n");
    const bool isPlain = std::none_of(text.cbegin(), text.cend(),
                                      [&](QChar character) { return parting.contains(character); });
    if (isPlain)
        return text;
    const QLatin1Char quote('"');
    return quote + text.replace(quote, QLatin1String("\"\"")) + quote;
}

QStringList headingsOf(const Record& record)
{
    QStringList headings;
    for (const Field& field : record)
        headings.append(field.heading.toUpper());
    return headings;
}

} // namespace

QString printable(const QString& text, const QString& harmless)
{
    QString clean;
    for (const QChar character : text) {
        const bool acts =
            character.category() == QChar::Other_Control && !harmless.contains(character);
        clean += acts ? QChar(0xfffd) : character;
    }
    return clean;
}

Field plainField(const char* key, const char* heading, const QJsonValue& value)
{
    return {QString::fromLatin1(key), QString::fromLatin1(heading), value};
}

Field secretField(const QString& key, const QString& heading, const QString& value)
{
    return {key, heading, value, true};
}

QJsonValue Output::shown(const Field& field) const
{
    if (field.secret && !showSecrets && !field.value.toString().isEmpty())
        return hiddenSecret();
    return field.value;
}

QString Output::textOf(const Field& field) const
{
    const QJsonValue value = shown(field);
    if (value.isBool())
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    if (value.isArray()) {
        QStringList texts;
        const QJsonArray values = value.toArray();
        for (const QJsonValue& element : values)
            texts.append(element.toVariant().toString());
        return printable(texts.join(QStringLiteral(", ")));
    }
    return printable(value.toVariant().toString());
}

QJsonObject Output::toJson(const Record& record) const
{
    QJsonObject object;
    for (const Field& field : record)
        object.insert(field.key, shown(field));
    return object;
}

QJsonArray Output::toJson(const QList<Record>& records) const
{
    QJsonArray objects;
    for (const Record& record : records)
        objects.append(toJson(record));
    return objects;
}

void Output::print(const Record& record) const
{
    if (json) {
        writeJson(*out, QJsonDocument(toJson(record)));
        return;
    }
    int width = 0;
    for (const Field& field : record)
        width = qMax(width, field.heading.size());
    for (const Field& field : record)
        writeLine(*out,
                  (field.heading + QLatin1Char(':')).leftJustified(width + 2) + textOf(field));
}

void Output::print(const QList<Record>& records, const QString& none) const
{
    if (json) {
        writeJson(*out, QJsonDocument(toJson(records)));
        return;
    }
    if (records.isEmpty()) {
        writeLine(*out, none);
        return;
    }
    QList<QStringList> rows{headingsOf(records.first())};
    for (const Record& record : records) {
        QStringList cells;
        for (const Field& field : record)
            cells.append(textOf(field));
        rows.append(cells);
    }
    QVector<int> widths(rows.first().size());
    for (const QStringList& cells : qAsConst(rows)) {
        for (int i = 0; i < widths.size(); ++i)
            widths[i] = qMax(widths.at(i), cells.value(i).size());
    }
    for (const QStringList& cells : qAsConst(rows))
        writeRow(*out, cells, widths);
}

void Output::printTables(const QList<Table>& tables) const
{
    QJsonObject object;
    for (const Table& table : tables) {
        if (json) {
            object.insert(table.key, toJson(table.records));
            continue;
        }
        if (&table != &tables.first())
            writeLine(*out, QString());
        print(table.records, table.none);
    }
    if (json)
        writeJson(*out, QJsonDocument(object));
}

void Output::print(const Record& whole, const QString& partsKey, const QList<Record>& parts,
                   const QString& none) const
{
    if (json) {
        print(whole + Record{{partsKey, QString(), toJson(parts)}});
        return;
    }
    print(whole);
    for (const Record& part : parts) {
        writeLine(*out, QString());
        print(part);
    }
    if (parts.isEmpty())
        writeLine(*out, none);
}

void Output::printCsv(const Record& example, const QList<Record>& records) const
{
    QStringList cells;
    for (const Field& field : example)
        cells.append(csvCell(field.key));
    *out << cells.join(QLatin1Char(',')).toStdString() << '\n';
    for (const Record& record : records) {
        cells.clear();
        for (const Field& field : record)
            cells.append(csvCell(textOf(field)));
        *out << cells.join(QLatin1Char(',')).toStdString() << '\n';
    }
}

void Output::printEach(const QList<Record>& records) const
{
    if (json) {
        writeJson(*out, QJsonDocument(toJson(records)));
        return;
    }
    for (int i = 0; i < records.size(); ++i) {
        if (i > 0)
            printLine();
        print(records.at(i));
    }
}

void Output::printLine(const QString& line) const
{
    if (!json)
        writeLine(*out, printable(line));
}

void Output::printPicture(const QString& lines) const
{
    if (!json)
        *out << lines.toStdString();
}

void Output::printDocument(const QJsonObject& document) const
{
    writeJson(*out, QJsonDocument(document));
}

void Output::printJsonLine(const QJsonObject& object) const
{
    writeJson(*out, QJsonDocument(object), QJsonDocument::Compact);
    writeLine(*out, QString());
}

void Output::printDone(const QString& sentence) const
{
    if (json)
        print(Record{{QStringLiteral("done"), QString(), sentence}});
    else
        writeLine(*out, printable(sentence));
}

} // namespace quorvelctl
