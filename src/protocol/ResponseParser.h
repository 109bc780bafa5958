#pragma once

#include <quorvel/ParamMap.h>

#include <QMutex>
#include <QString>

namespace quorvel
{

/// Flattens a gateway's reply into a map.
class ResponseParser
{
public:
    ResponseParser() = default;
    virtual ~ResponseParser() = default;

    /// Adds the reply's entries to `result`, overwriting what stands under the same keys. False,
    /// with `result` untouched, only if the text is not well-formed; a document nested deeper than
    /// 256 levels or one that declares entities counts as not well-formed.
    virtual bool parse(const QString& response, ParamMap& result) = 0;

protected:
    QMutex mutex;

private:
    Q_DISABLE_COPY(ResponseParser)
};

} // namespace quorvel
