#include "protocol/HttpRequestExecutor.h"

#include "protocol/Log.h"
#include "protocol/NetworkExchange.h"
#include "protocol/ParamKeys.h"

#include <QCoreApplication>

namespace quorvel
{

namespace
{

const QLatin1String setCookie("Set-Cookie");

int invalid(const QString& message)
{
    log(LogError, message, QStringLiteral("HTTP_REQUEST_EXECUTOR"));
    return RequestInvalidParameters;
}

int checkParameters(const ParamMap& params)
{
    const QString early = QStringLiteral("HttpRequestExecutor:You have to declare parameter ");
    const QString late = QStringLiteral("HttpRequestExecutor: You have to declare parameter ");
    const struct {
        const QString& key;
        const QString& complaint;
    } required[] = {{HTTP_PARAM_URL, early},
                    {HTTP_PARAM_METHOD, early},
                    {HTTP_PARAM_DATA_TO_SEND, late},
                    {HTTP_PARAM_PATH, late}};
    for (const auto& parameter : required) {
        if (!params.contains(parameter.key))
            return invalid(parameter.complaint + parameter.key);
    }
    const QString method = params.value(HTTP_PARAM_METHOD);
    if (method != HTTP_PARAM_METHOD_POST)
        return invalid(QStringLiteral("HttpRequestExecutor:Invalid  parameter ") + method);
    return RequestSucceeded;
}

/// Repeated headers arrive joined by a line feed; of repeated cookies the last one counts, and a
/// line feed must never reach a header that we send.
QString lastLine(const QString& text)
{
    return text.mid(text.lastIndexOf(QLatin1Char('\n')) + 1).remove(QLatin1Char('\r'));
}

QNetworkRequest requestFor(const ParamMap& params)
{
    QString address = params.value(HTTP_PARAM_URL);
    if (!address.startsWith(QLatin1String("http://")))
        address.prepend(QLatin1String("http://"));
    QNetworkRequest request =
        NetworkExchange::request(QUrl(address + params.value(HTTP_PARAM_PATH)));
    request.setRawHeader("Host", request.url().host().toLocal8Bit());
    request.setRawHeader("Content-Type", "application/x-www-form-urlencoded");
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    const QString session = lastLine(params.value(HTTP_PARAM_SESSION));
    if (!session.isEmpty())
        request.setRawHeader("Cookie", session.toUtf8());
    return request;
}

/// Whether the body has the length that the gateway announced, if it announced one: when a
/// connection breaks at the wrong moment, Qt takes a part for the whole.
bool isWhole(const NetworkExchange& exchange)
{
    bool isAnnounced = false;
    const qint64 length = exchange.reply().rawHeader("Content-Length").toLongLong(&isAnnounced);
    return !isAnnounced || length < 0 || length == exchange.body().size();
}

int statusOf(NetworkExchange::Ending ending, const NetworkExchange& exchange)
{
    if (ending == NetworkExchange::Ending::TimedOut)
        return RequestTimedOut;
    // What is broken off has no error of its own, and no body, or too much of it.
    if (ending == NetworkExchange::Ending::BrokenOff)
        return RequestNetworkFailure;
    switch (exchange.error()) {
    case QNetworkReply::NoError:
        return isWhole(exchange) ? RequestSucceeded : RequestNetworkFailure;
    case QNetworkReply::TimeoutError:
        return RequestTimedOut;
    case QNetworkReply::UnknownNetworkError:
        return RequestUnknownNetworkError;
    default:
        return RequestNetworkFailure;
    }
}

ParamMap contentOf(const NetworkExchange& exchange)
{
    ParamMap content;
    // In pairs: looking each name up takes minutes where there are many.
    for (const auto& [rawName, rawValue] : exchange.reply().rawHeaderPairs()) {
        const QString name = QString::fromUtf8(rawName);
        QString value = QString::fromUtf8(rawValue);
        if (name.startsWith(setCookie)) {
            value = lastLine(value);
            value.remove(QLatin1Char(';')).remove(QLatin1String("path=/"));
        }
        content.insert(name, value.trimmed());
    }
    // Up to the first NUL byte, where the gateway's own texts end.
    content.insert(REQUEST_EXEC_PARAM_RESULT, QString::fromUtf8(exchange.body().constData()));
    return content;
}

} // namespace

HttpRequestExecutor::HttpRequestExecutor(int limitMs) : limitMs(limitMs) {}

HttpRequestExecutor::~HttpRequestExecutor()
{
    HttpRequestExecutor::abortPendingRequests();
}

int HttpRequestExecutor::execute(const ParamMap& params, ParamMap& result)
{
    // An event of this thread that is served during the wait may call again.
    if (busy.exchange(true))
        return RequestBusy;
    const int status = exchange(params, result);
    busy = false;
    return status;
}

int HttpRequestExecutor::exchange(const ParamMap& params, ParamMap& result)
{
    const int validity = checkParameters(params);
    if (validity != RequestSucceeded)
        return validity;
    if (!QCoreApplication::instance()) {
        log(LogError,
            QStringLiteral("HttpRequestExecutor: A QCoreApplication is needed for requests"),
            QStringLiteral("HTTP_REQUEST_EXECUTOR"));
        return RequestNetworkFailure;
    }
    NetworkExchange exchange(&abortSignal);
    const auto ending =
        exchange.post(requestFor(params), params.value(HTTP_PARAM_DATA_TO_SEND).toUtf8(), limitMs);
    const int status = statusOf(ending, exchange);
    if (status == RequestSucceeded)
        result = contentOf(exchange);
    return status;
}

void HttpRequestExecutor::abortPendingRequests()
{
    abortSignal.raise();
}

} // namespace quorvel
