#include "protocol/AspRequestFormatterV1.h"

#include "protocol/AspRequestDocument.h"

namespace quorvel
{

QString AspRequestFormatterV1::formatRequest()
{
    // No lock here, unlike in the newer dialect: the implementor's own lock covers the queue.
    AspRequestDocument document(QLatin1String("1.0.0"));
    document.append(commands);
    commands = Queue();
    return document.toString();
}

QString AspRequestFormatterV1::formatCommands()
{
    return QString();
}

QString AspRequestFormatterV1::wrapCommands(const QString&)
{
    return QString();
}

} // namespace quorvel
