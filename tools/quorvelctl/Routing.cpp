#include "Routing.h"

#include "Failure.h"

#include <QFile>

namespace quorvelctl
{

QString defaultGateway()
{
    QFile table(QStringLiteral("/proc/net/route"));
    table.open(QIODevice::ReadOnly);
    // Columns: interface, destination, gateway, ...; addresses are hexadecimal, lowest byte first.
    const QList<QByteArray> lines = table.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        if (columns.value(1) != "00000000" || columns.value(2) == "00000000")
            continue;
        bool isAddress = false;
        const quint32 bytes = columns.value(2).toUInt(&isAddress, 16);
        if (!isAddress)
            continue;
        return QStringLiteral("%1.%2.%3.%4")
            .arg(bytes & 0xff)
            .arg(bytes >> 8 & 0xff)
            .arg(bytes >> 16 & 0xff)
            .arg(bytes >> 24 & 0xff);
    }
    throw Failure{WrongUsage,
                  QStringLiteral("no --address given, and this machine has no default gateway")};
}

} // namespace quorvelctl
