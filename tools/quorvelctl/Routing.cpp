#include "Routing.h"

#include "Failure.h"

#include <QFile>

namespace quorvelctl
{

QString defaultGatewayIn(const QByteArray& table)
{
    enum Column { Destination = 1, Router = 2, Flags = 3, Mask = 7 };
    const uint isUpAndHasRouter = 0x3;
    const QByteArray anywhere = QByteArrayLiteral("00000000");
    // The kernel lists the routes to one destination best first. A destination alone doesn't make a
    // default route: tunnels take over with two routes to one half of all addresses each.
    const QList<QByteArray> lines = table.split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        const uint flags = columns.value(Flags).toUInt(nullptr, 16);
        if (columns.value(Destination) != anywhere || columns.value(Mask) != anywhere ||
            (flags & isUpAndHasRouter) != isUpAndHasRouter)
            continue;
        // Hexadecimal, lowest byte first.
        const quint32 bytes = columns.value(Router).toUInt(nullptr, 16);
        return QStringLiteral("%1.%2.%3.%4")
            .arg(bytes & 0xff)
            .arg(bytes >> 8 & 0xff)
            .arg(bytes >> 16 & 0xff)
            .arg(bytes >> 24 & 0xff);
    }
    return QString();
}

QString defaultGateway()
{
    QFile table(QStringLiteral("/proc/net/route"));
    table.open(QIODevice::ReadOnly);
    const QString gateway = defaultGatewayIn(table.readAll());
    if (gateway.isEmpty())
        throw Failure{WrongUsage, QStringLiteral("no --address given, and this machine has no "
                                                 "default gateway")};
    return gateway;
}

} // namespace quorvelctl
