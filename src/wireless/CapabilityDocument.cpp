#include "wireless/CapabilityDocument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
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

/// Whether an object names a key twice. Qt's reader keeps the last value, and for ever the memory
/// of those before it, so that a gateway could use up its host's.
bool repeatsAKey(const QString& document)
{
    std::vector<QSet<QString>> open; // keys by object; an array has none
    for (int i = 0; i < document.size(); ++i) {
        if (document[i] == QLatin1Char('{') || document[i] == QLatin1Char('[')) {
            open.emplace_back();
        } else if (document[i] == QLatin1Char('}') || document[i] == QLatin1Char(']')) {
            if (!open.empty())
                open.pop_back();
        } else if (document[i] == QLatin1Char('"')) {
            const int end = endOfString(document, i);
            if (isKey(document, end) && !open.empty()) {
                const QString key = decoded(document.mid(i, end - i));
                if (open.back().contains(key))
                    return true;
                open.back().insert(key);
            }
            i = end - 1;
        }
    }
    return false;
}

} // namespace

QVariantMap readCapabilityDocument(const QString& document)
{
    if (hasTooManyValues(document) || repeatsAKey(document))
        return QVariantMap();
    return QJsonDocument::fromJson(document.toUtf8()).toVariant().toMap();
}

} // namespace quorvel
