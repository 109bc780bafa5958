#pragma once

#include <quorvel/ParamMap.h>

#include "protocol/ParamKeys.h"

#include <QLatin1String>
#include <QList>
#include <QString>
#include <QStringBuilder>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace quorvel
{

/// Whether a flag of a reply is set; one that the reply lacks is not.
inline bool isSet(const ParamMap& reply, const QString& key)
{
    return reply.value(key) == QLatin1String("1");
}

/// One field of a record: the entry that fills it.
template <typename Record>
struct TextField {
    const char* entry;
    QString Record::*member;
};

/// Fills a record's texts from the entries whose names start with `prefix` and, in a numbered list,
/// end with `number`, by the record's table. An entry that the reply lacks gives an empty text.
template <typename Record, typename Table>
void readTexts(Record& record, const Table& fields, const ParamMap& reply, const QString& prefix,
               const QString& number = QString())
{
    for (const TextField<Record>& field : fields)
        record.*field.member = reply.value(prefix % QLatin1String(field.entry) % number);
}

/// A word of the gateway's and the enumerator that it stands for.
template <typename Enumeration>
struct Word {
    const char* text;
    Enumeration meaning;
};

/// What a word means by its table, compared exactly; `otherwise` for a word that isn't there.
template <typename Enumeration, std::size_t count>
Enumeration meaningOf(const QString& text, const Word<Enumeration> (&words)[count],
                      Enumeration otherwise)
{
    for (const Word<Enumeration>& word : words) {
        if (text == QLatin1String(word.text))
            return word.meaning;
    }
    return otherwise;
}

/// The entries of a reply whose names are `stem`, a number and `tail`, found in one pass over the
/// names that start alike: looking each up would take the longer the more there are. A number
/// counts only as it is written without leading zeros.
class NumberedEntries
{
public:
    /// Valid as long as the reply, which must not be changed.
    NumberedEntries(const ParamMap& reply, const QString& stem, const QString& tail = QString());

    /// Null if the reply lacks the entry.
    const QString* find(int number) const;
    QString value(int number) const;
    /// The numbers of all entries, upwards.
    std::vector<int> numbers() const;

private:
    struct Entry {
        int number;
        const QString* value;
    };

    std::vector<Entry> entries;
};

/// Records in a numbered list: each of the table's entries ends with the number of its record.
template <typename Record>
class NumberedRecords
{
public:
    template <typename Table>
    NumberedRecords(const Table& fields, const ParamMap& reply, const QString& prefix)
    {
        for (const TextField<Record>& field : fields)
            columns.push_back({field.member, {reply, prefix % QLatin1String(field.entry)}});
    }

    /// Filled like one of readTexts.
    Record at(int number) const
    {
        Record record;
        for (const Column& column : columns)
            record.*column.member = column.entries.value(number);
        return record;
    }

private:
    struct Column {
        QString Record::*member;
        NumberedEntries entries;
    };

    std::vector<Column> columns;
};

/// The values of the entries `stem` and a number, counted up from `first` to the first number that
/// the reply lacks.
QList<QString> numberedValues(const ParamMap& reply, const QString& stem, int first);

/// The values of a reply that lists names, in key order, without its status entries; `listing`
/// receives them as the log shows them.
QList<QString> listedValues(const ParamMap& reply, std::initializer_list<QString> leftOut,
                            QString& listing);

} // namespace quorvel
