#include "Failure.h"
#include "Session.h"
#include "commands/Commands.h"

#include <algorithm>
#include <map>
#include <memory>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

bool isMounted(const AspUsbHostDisk& disk)
{
    return disk.status == QLatin1String("1");
}

boost::shared_ptr<AspUsbHostSettingsFacade> usbPort(Gateway& gateway)
{
    const auto facade = gateway.object().getUsbHostSettingsFacade();
    gateway.require(facade, QStringLiteral("USB host port"));
    return facade;
}

AspUsbHostDevices readDevices(Gateway& gateway)
{
    const auto port = usbPort(gateway);
    return gateway.ask(QStringLiteral("list the USB devices"),
                       [&](auto& error) { return port->getUsbHostDevices(error); });
}

QList<Record> recordsOf(const QList<AspUsbHostDisk>& disks)
{
    QList<Record> records;
    for (const AspUsbHostDisk& disk : disks)
        records.append(
            {plainField("id", "Disk", disk.deviceId), plainField("name", "Name", disk.name),
             plainField("number", "Number", disk.diskNum), plainField("size", "Size", disk.size),
             plainField("freeSpace", "Free", disk.freeSpace),
             plainField("fileSystem", "File system", disk.fileSystem),
             plainField("status", "Status", disk.status),
             plainField("mounted", "Mounted", isMounted(disk))});
    return records;
}

QList<Record> recordsOf(const QList<AspUsbHostPrinter>& printers)
{
    QList<Record> records;
    for (const AspUsbHostPrinter& printer : printers)
        records.append({plainField("name", "Printer", printer.name),
                        plainField("serial", "Serial number", printer.serial),
                        plainField("manufacturer", "Manufacturer", printer.manufacturer),
                        plainField("product", "Product", printer.product)});
    return records;
}

void devices(Session& session)
{
    const AspUsbHostDevices found = readDevices(session.gateway());
    session.output().printTables(
        {{QStringLiteral("disks"), recordsOf(found.disks), QStringLiteral("No disks.")},
         {QStringLiteral("printers"), recordsOf(found.printers), QStringLiteral("No printers.")}});
}

void status(Session& session)
{
    Gateway& gateway = session.gateway();
    const auto port = usbPort(gateway);
    bool printer = false;
    bool disk = false;
    gateway.ask(QStringLiteral("read the state of the USB port"), [&](auto& error) {
        port->getUsbStatus(printer, disk, error);
        return true;
    });
    session.output().print({plainField("printer", "Printer is connected", printer),
                            plainField("diskMounted", "Disk is mounted", disk)});
}

/// Mounting or unmounting.
struct DiskAction {
    const char* name;
    const char* help;
    bool mounts;
    bool (AspUsbHostSettingsFacade::*operation)(const QString&, AspWebAppErrorCodes&);
    std::string disk;
};

QList<AspUsbHostDisk>::const_iterator diskNamed(const QList<AspUsbHostDisk>& disks,
                                                const QString& id)
{
    return std::find_if(disks.cbegin(), disks.cend(),
                        [&](const AspUsbHostDisk& disk) { return disk.deviceId == id; });
}

void run(Session& session, const DiskAction& action)
{
    Gateway& gateway = session.gateway();
    const auto port = usbPort(gateway);
    const QString id = QString::fromStdString(action.disk);
    const QList<AspUsbHostDisk> before = readDevices(gateway).disks;
    if (diskNamed(before, id) == before.cend())
        throw Failure{GatewayFailed,
                      QStringLiteral("%1 has no disk %2").arg(gateway.address(), id)};
    const QString what = QStringLiteral("%1 disk %2").arg(QLatin1String(action.name), id);
    // Its result is false in any case: the error tells what the gateway thinks of it, and the list
    // of devices what came of it.
    gateway.ask(what, [&](auto& error) { return (*port.*action.operation)(id, error); });
    const QList<AspUsbHostDisk> disks = readDevices(gateway).disks;
    const auto found = diskNamed(disks, id);
    const bool mounted = found != disks.cend() && isMounted(*found);
    if (mounted != action.mounts)
        throw Failure{GatewayFailed,
                      QStringLiteral("can't %1: the gateway didn't do it").arg(what)};
    session.output().print(recordsOf(disks), QStringLiteral("No disks."));
}

const struct {
    const char* key;
    const char* heading;
    const char* help;
    QString AspUsbHostAdvancedSettings::*text;
} sharingTexts[] = {
    {"hostname", "Host name", "New host name", &AspUsbHostAdvancedSettings::hostName},
    {"description", "Description", "New description", &AspUsbHostAdvancedSettings::description},
    {"workgroup", "Work group", "New work group", &AspUsbHostAdvancedSettings::workGroup}};

AspUsbHostAdvancedSettings readSharing(Gateway& gateway, AspUsbHostSettingsFacade& port)
{
    const auto settings =
        gateway.ask(QStringLiteral("read the sharing settings"),
                    [&](auto& error) { return port.getUsbHostAdvancedSettings(error); });
    if (settings.instances.connInstance.isEmpty() && settings.instances.sambaInstance.isEmpty())
        throw Failure{GatewayFailed, QStringLiteral("can't read the sharing settings: the gateway "
                                                    "doesn't tell where they are")};
    return settings;
}

void writeSharing(Gateway& gateway, AspUsbHostSettingsFacade& port,
                  const AspUsbHostAdvancedSettings& settings)
{
    const QString what = QStringLiteral("write the sharing settings");
    if (settings.instances.connInstance.isEmpty() || settings.instances.sambaInstance.isEmpty())
        throw Failure{GatewayFailed,
                      QStringLiteral("can't %1: the gateway doesn't tell where").arg(what)};
    AspUsbHostDevices wanted;
    wanted.advanced = settings;
    gateway.demand(what,
                   [&](auto& error) { return port.setUsbHostAdvancedSettings(wanted, error); });
    // Silence counts as success, as a new host name may cut the connection.
    const AspUsbHostAdvancedSettings stored = readSharing(gateway, port);
    for (const auto& row : sharingTexts) {
        if (stored.*row.text != settings.*row.text)
            throw Failure{GatewayFailed,
                          QStringLiteral("can't %1: the gateway didn't do it").arg(what)};
    }
}

void sharing(Session& session, const std::map<std::string, std::string>& given)
{
    Gateway& gateway = session.gateway();
    const auto port = usbPort(gateway);
    AspUsbHostAdvancedSettings settings = readSharing(gateway, *port);
    // The gateway replaces all three, so what isn't named is written back as it is.
    for (const auto& row : sharingTexts) {
        const auto text = given.find(row.key);
        if (text != given.end())
            settings.*row.text = QString::fromStdString(text->second);
    }
    if (!given.empty())
        writeSharing(gateway, *port, settings);
    Record record;
    for (const auto& row : sharingTexts)
        record.append(plainField(row.key, row.heading, settings.*row.text));
    session.output().print(record);
}

void addDiskActions(commandline::Command group, Session& session)
{
    const DiskAction actions[] = {
        {"mount", "Mount a disk", true, &AspUsbHostSettingsFacade::diskMount, {}},
        {"unmount",
         "Unmount a disk, so that it can be unplugged",
         false,
         &AspUsbHostSettingsFacade::diskUnmount,
         {}}};
    for (const DiskAction& row : actions) {
        auto command = group.addCommand(row.name, row.help);
        const auto action = std::make_shared<DiskAction>(row);
        command.addOption("disk", action->disk, "The disk, as usb devices lists it")
            .required()
            .valueName("ID");
        command.callback([&session, action] { run(session, *action); });
    }
}

void addSharing(commandline::Command group, Session& session)
{
    auto command = group.addCommand("sharing", "Show how disks are shared, or change it");
    const auto given = std::make_shared<std::map<std::string, std::string>>();
    for (const auto& row : sharingTexts)
        command.addOption(
            std::string("--") + row.key,
            [given, key = std::string(row.key)](const std::string& text) { (*given)[key] = text; },
            row.help);
    command.callback([&session, given] { sharing(session, *given); });
}

} // namespace

void addUsbCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("usb", "Show USB devices, mount disks, show or change sharing");
    group.addCommand("devices", "List the disks and printers").callback([&session] {
        devices(session);
    });
    group.addCommand("status", "Tell whether there is a printer, and a mounted disk")
        .callback([&session] { status(session); });
    addDiskActions(group, session);
    addSharing(group, session);
}

} // namespace quorvelctl
