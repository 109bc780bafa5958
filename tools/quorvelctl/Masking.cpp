#include "Masking.h"

#include "Secrets.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

namespace quorvelctl
{

namespace
{

/// An element that holds nothing but text: its name and where that text is.
QRegularExpressionMatchIterator leavesOf(const QString& xml)
{
    static const QRegularExpression leaf(
        QStringLiteral("<([^\\s<>/!?]+)[^<>]*>((?:[^<]++|<!\\[CDATA\\[.*?\\]\\]>)+)</"),
        QRegularExpression::DotMatchesEverythingOption);
    return leaf.globalMatch(xml);
}

} // namespace

bool isSecretKey(const QString& key)
{
    // At the end of the key, as which key is in use is no secret, or before a number.
    static const QRegularExpression secret(
        QStringLiteral("(password|passwd|psk|secret|token|session|wep_?key|wpa_?key|radius_?key)"
                       "([-_]?\\d+)?$|(^|\\.)(pin|puk)$"),
        QRegularExpression::CaseInsensitiveOption);
    return secret.match(key).hasMatch();
}

QString maskedXml(const QString& xml)
{
    QString result;
    QString key;
    int done = 0;
    for (auto leaves = leavesOf(xml); leaves.hasNext();) {
        const auto leaf = leaves.next();
        const QString name = leaf.captured(1);
        if (name == QLatin1String("key"))
            key = leaf.captured(2).trimmed();
        if (!isSecretKey(name == QLatin1String("value") ? key : name))
            continue;
        result += xml.mid(done, leaf.capturedStart(2) - done) + hiddenSecret();
        done = leaf.capturedEnd(2);
    }
    return result + xml.mid(done);
}

QJsonValue masked(const QJsonValue& value)
{
    if (value.isArray()) {
        QJsonArray elements;
        for (const QJsonValue& element : value.toArray())
            elements.append(masked(element));
        return elements;
    }
    QJsonObject object = value.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const bool hides = isSecretKey(entry.key()) && !entry.value().toString().isEmpty();
        entry.value() = hides ? QJsonValue(hiddenSecret()) : masked(entry.value());
    }
    return value.isObject() ? QJsonValue(object) : value;
}

} // namespace quorvelctl
