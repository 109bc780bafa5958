#pragma once

#include <quorvel/AspWebAppErrorCodes.h>

#include "support/BuiltGateway.h"

#include <QStringList>

namespace quorvel::test
{

/// A reply that breaks off: a request that fails in transport, on one connection.
inline const QByteArray brokenReply = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<response>";

/// A facade on the newest kind of gateway.
template <typename Facade>
class FacadeOnGateway : public BuiltGateway
{
protected:
    void SetUp() override
    {
        buildNewest();
        facade = Facade(cpe);
    }

    /// What was logged, without the transport's own lines.
    QStringList ownLines() const
    {
        QStringList own;
        for (const QString& line : log.lines()) {
            if (!line.startsWith(QLatin1String("HTTP_REQUEST_EXECUTOR: ")))
                own.append(line);
        }
        return own;
    }

    Facade facade{boost::shared_ptr<Cpe>()};
    /// Neither success nor any failure that occurs, so that a code left unwritten shows.
    AspWebAppErrorCodes error = static_cast<AspWebAppErrorCodes>(77);
};

} // namespace quorvel::test
