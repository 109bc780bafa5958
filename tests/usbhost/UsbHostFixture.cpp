#include "usbhost/UsbHostFixture.h"

namespace quorvel::test
{

namespace
{

// Taken apart by position: the order of the fields is part of the records.

QString shown(const AspUsbHostPrinter& printer)
{
    const auto& [name, serial, manufacturer, product] = printer;
    return QStringList{text("printer"), name, serial, manufacturer, product}.join(QLatin1Char('|'));
}

QString shown(const AspUsbHostDisk& disk)
{
    const auto& [deviceId, name, diskNum, size, freeSpace, status, fileSystem] = disk;
    return QStringList{text("disk"), deviceId, name, diskNum, size, freeSpace, status, fileSystem}
        .join(QLatin1Char('|'));
}

} // namespace

QString shown(const AspUsbHostAdvancedSettings& settings)
{
    const auto& [hostName, description, workGroup, instances] = settings;
    const auto& [connInstance, sambaInstance] = instances;
    return QStringList{text("sharing"), hostName, description, workGroup,
                       connInstance + sambaInstance}
        .join(QLatin1Char('|'));
}

QStringList shown(const AspUsbHostDevices& devices)
{
    const auto& [printers, disks, advanced] = devices;
    QStringList texts;
    for (const AspUsbHostPrinter& printer : printers)
        texts.append(shown(printer));
    for (const AspUsbHostDisk& disk : disks)
        texts.append(shown(disk));
    return texts << shown(advanced);
}

} // namespace quorvel::test
