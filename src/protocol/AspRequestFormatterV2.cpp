#include "protocol/AspRequestFormatterV2.h"

#include "protocol/AspRequestDocument.h"
#include "protocol/Latin1.h"

#include <QMutexLocker>

namespace quorvel
{

namespace
{

constexpr QLatin1String version = "1.0.1"_latin1;
constexpr QLatin1String openingTag = "<xmlrequest version=\"1.0.1\">"_latin1;
constexpr QLatin1String closingTag = "</xmlrequest>"_latin1;

} // namespace

QString AspRequestFormatterV2::formatRequest()
{
    QMutexLocker locker(&mutex);
    AspRequestDocument document(version);
    document.append(commands);
    commands = Queue();
    return document.toString();
}

QString AspRequestFormatterV2::formatCommands()
{
    QMutexLocker locker(&mutex);
    AspRequestDocument document(version);
    const int emptyLength = document.toString().length();
    document.append(commands);
    commands = Queue();
    QString text = document.toString();
    text.chop(closingTag.size() + 1);
    // The root's "<" stays and takes the place of the first command's, which goes with the rest of
    // the root: so the first command isn't indented and the others are, as the gateway expects.
    text.remove(1, emptyLength);
    return text;
}

QString AspRequestFormatterV2::wrapCommands(const QString& commands)
{
    QMutexLocker locker(&mutex);
    return openingTag + commands + closingTag;
}

} // namespace quorvel
