#include "protocol/AspResponseParser3g.h"

#include "protocol/AspResponsePairs.h"

#include <QMutexLocker>

namespace quorvel
{

bool AspResponseParser3g::parse(const QString& response, ParamMap& result)
{
    QMutexLocker locker(&mutex);
    QString previous;
    int counter = 2;
    return parsePairs(response, result, [&](const QString& key) {
        if (key == previous && !previous.isEmpty())
            return key + QString::number(counter++);
        previous = key;
        return key;
    });
}

} // namespace quorvel
