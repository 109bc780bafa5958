#include "wireless/CapabilityDocument.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <vector>

namespace quorvel
{

namespace
{

/// Whether a document has more values than a tree of 64 MB can hold: each takes far more room there
/// than in the text.
bool hasTooManyValues(const QString& document)
{
    const auto begins = [](QChar character) {
        return character == QLatin1Char(',') || character == QLatin1Char('[') ||
               character == QLatin1Char('{');
    };
    return std::count_if(document.begin(), document.end(), begins) > 50000;
}

/// The place behind the string that begins at `start`.
int endOfString(const QString& document, int start)
{
    int end = start + 1;
    while (end < document.size() && document[end] != QLatin1Char('"'))
        end += document[end] == QLatin1Char('\\') ? 2 : 1;
    return end + 1;
}

/// Whether a string that ends before `position` is a key.
bool isKey(const QString& document, int position)
{
    while (position < document.size() && document[position].isSpace())
        ++position;
    return position < document.size() && document[position] == QLatin1Char(':');
}

/// What a string with its quotation marks stands for.
QString decoded(const QString& string)
{
    if (!string.contains(QLatin1Char('\\')))
        return string.mid(1, string.size() - 2);
    const QString list = QLatin1Char('[') + string + QLatin1Char(']');
    return QJsonDocument::fromJson(list.toUtf8()).array().at(0).toString();
}

const std::size_t deepestNesting = 1024; // Qt reads nothing that is nested deeper

/// Where a key and its value stand in a document, together with the comma behind them.
struct Pair {
    int start = 0;
    int end = 0;
};

/// An object or list of which the end hasn't come yet.
struct Open {
    QHash<QString, Pair> pairs;
    QString lastKey;
    int lastStart = -1; // of a pair that hasn't ended

    void takeKey(const QString& key, int start)
    {
        lastKey = key;
        lastStart = start;
    }

    void endPair(int end)
    {
        if (lastStart >= 0)
            pairs.insert(lastKey, {lastStart, end});
        lastStart = -1;
    }
};

/// Leaves of the pairs of an object that have the same key only the last, whose value counts: Qt's
/// reader keeps for ever the memory of those before it, so that a gateway could use up its host's.
/// False if the document is nested too deeply to be read.
bool dropRepeatedKeys(QString& document)
{
    std::vector<Open> open;
    for (int i = 0; i < document.size(); ++i) {
        const QChar character = document.at(i);
        if (character == QLatin1Char('{') || character == QLatin1Char('[')) {
            open.emplace_back();
            if (open.size() > deepestNesting)
                return false;
        } else if (open.empty()) {
            continue;
        } else if (character == QLatin1Char('}') || character == QLatin1Char(']')) {
            open.pop_back();
        } else if (character == QLatin1Char(',')) {
            open.back().endPair(i + 1);
        } else if (character == QLatin1Char('"')) {
            const int end = endOfString(document, i);
            if (isKey(document, end)) {
                const QString key = decoded(document.mid(i, end - i));
                const Pair earlier = open.back().pairs.take(key);
                std::fill(document.begin() + earlier.start, document.begin() + earlier.end,
                          QLatin1Char(' '));
                open.back().takeKey(key, i);
            }
            i = end - 1;
        }
    }
    return true;
}

} // namespace

QVariantMap readCapabilityDocument(QString document)
{
    if (hasTooManyValues(document) || !dropRepeatedKeys(document))
        return QVariantMap();
    return QJsonDocument::fromJson(document.toUtf8()).toVariant().toMap();
}

} // namespace quorvel
