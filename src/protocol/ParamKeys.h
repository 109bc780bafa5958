#pragma once

#include <QString>
#include <QStringBuilder>

namespace quorvel
{

// What the executor is given and gives back.
inline const QString HTTP_PARAM_URL = QStringLiteral("HTTP_PARAM_URL");
inline const QString HTTP_PARAM_METHOD = QStringLiteral("HTTP_PARAM_METHOD");
inline const QString HTTP_PARAM_METHOD_POST = QStringLiteral("HTTP_PARAM_METHOD_POST");
inline const QString HTTP_PARAM_DATA_TO_SEND = QStringLiteral("HTTP_PARAM_DATA_TO_SEND");
inline const QString HTTP_PARAM_PATH = QStringLiteral("HTTP_PARAM_PATH");
inline const QString HTTP_PARAM_SESSION = QStringLiteral("HTTP_PARAM_SESSION");
inline const QString REQUEST_EXEC_PARAM_RESULT = QStringLiteral("REQUEST_EXEC_PARAM_RESULT");

// Status entries that stand beside a reply's own.
inline const QString AUTH_PARAM_LOGINRESULT = QStringLiteral("AUTH_PARAM_LOGINRESULT");
inline const QString webappErrorKey = QStringLiteral("webapp.error");
inline const QString responseKey = QStringLiteral("response");

/// The name under which an entry of an instance stands in a map.
inline QString replyKey(const QString& instance, const QString& entry)
{
    return instance % QLatin1Char('.') % entry;
}

} // namespace quorvel
