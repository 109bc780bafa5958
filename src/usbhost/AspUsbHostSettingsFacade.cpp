#include <quorvel/AspUsbHostSettingsFacade.h>

#include "access/ReplyReading.h"
#include "protocol/Vocabulary.h"
#include "usbhost/UsbHostCall.h"
#include "usbhost/UsbHostKeys.h"

#include <algorithm>

namespace quorvel
{

namespace
{

using U = UsbHostSettingsImplementor;

const TextField<AspUsbHostPrinter> printerFields[] = {
    {"Name", &AspUsbHostPrinter::name},
    {"Serial", &AspUsbHostPrinter::serial},
    {"Manufacturer", &AspUsbHostPrinter::manufacturer},
    {"Product", &AspUsbHostPrinter::product}};

const TextField<AspUsbHostDisk> diskFields[] = {
    {"DeviceId", &AspUsbHostDisk::deviceId},    {"Name", &AspUsbHostDisk::name},
    {"DiskNum", &AspUsbHostDisk::diskNum},      {"Size", &AspUsbHostDisk::size},
    {"FreeSpace", &AspUsbHostDisk::freeSpace},  {"Status", &AspUsbHostDisk::status},
    {"FileSystem", &AspUsbHostDisk::fileSystem}};

QString usbHostKey(const char* entry)
{
    return replyKey(wire::usbhostMngr0, QLatin1String(entry));
}

AspUsbHostDevices devicesIn(const ParamMap& reply)
{
    const QString prefix = usbHostKey("");
    const int count = reply.value(usbHostKey("DeviceCount")).toInt();
    const NumberedEntries types(reply, usbHostKey("Type"));
    const NumberedRecords<AspUsbHostDisk> disks(diskFields, reply, prefix);
    const NumberedRecords<AspUsbHostPrinter> printers(printerFields, reply, prefix);
    AspUsbHostDevices devices;
    // By the reply's entries, not by counting up: the gateway may claim billions.
    for (const int number : types.numbers()) {
        const QString type = number < count ? types.value(number) : QString();
        if (type == QLatin1String("0"))
            devices.disks.append(disks.at(number));
        else if (type == QLatin1String("1"))
            devices.printers.append(printers.at(number));
    }
    return devices;
}

/// The texts of the settings and the full names of the entries that hold them.
struct SharingText {
    QString key;
    QString AspUsbHostAdvancedSettings::*member;
};

QList<SharingText> sharingTexts(const AspUsbHostInstList& instances)
{
    using S = AspUsbHostAdvancedSettings;
    return {{replyKey(instances.connInstance, wire::hostname), &S::hostName},
            {replyKey(instances.sambaInstance, wire::description), &S::description},
            {replyKey(instances.sambaInstance, wire::workGroup), &S::workGroup}};
}

/// The first instance of a manager.
QString firstInstance(const ParamMap& reply, QLatin1String manager)
{
    return reply.value(replyKey(wire::devmgr0, manager + QLatin1String(".inst0")));
}

} // namespace

AspUsbHostDevices AspUsbHostSettingsFacade::getUsbHostDevices(AspWebAppErrorCodes& error)
{
    AspUsbHostDevices devices;
    fetch(
        *this, error, usbHostCall(&U::getUsbHostDevices),
        [&](const ParamMap& reply) { devices = devicesIn(reply); }, nullptr);
    return devices;
}

void AspUsbHostSettingsFacade::getUsbStatus(bool& printerConnected, bool& diskMounted,
                                            AspWebAppErrorCodes& error)
{
    const AspUsbHostDevices devices = getUsbHostDevices(error);
    printerConnected = !devices.printers.isEmpty();
    diskMounted =
        std::any_of(devices.disks.cbegin(), devices.disks.cend(),
                    [](const AspUsbHostDisk& disk) { return disk.status == QLatin1String("1"); });
}

bool AspUsbHostSettingsFacade::diskMount(const QString& deviceId, AspWebAppErrorCodes& error)
{
    change(*this, error, usbHostCall(&U::diskMount, deviceId));
    // An answer says nothing about the disk, so hosts go by the error.
    return false;
}

bool AspUsbHostSettingsFacade::diskUnmount(const QString& deviceId, AspWebAppErrorCodes& error)
{
    change(*this, error, usbHostCall(&U::diskUnmount, deviceId));
    return false;
}

AspUsbHostAdvancedSettings AspUsbHostSettingsFacade::getUsbHostAdvancedSettings(
    AspWebAppErrorCodes& error)
{
    AspUsbHostAdvancedSettings settings;
    FacadeCall call(*this, error);
    if (!call.isPermitted())
        return settings;
    if (call.ask(&Cpe::getUsbHostImplementor, &U::getUsbHostInstList)) {
        const AspUsbHostInstList instances{firstInstance(call.reply(), wire::conn),
                                           firstInstance(call.reply(), wire::sambaMngr)};
        if (call.ask(&Cpe::getUsbHostImplementor, &U::getUsbHostAdvancedSettings,
                     instances.sambaInstance, instances.connInstance)) {
            for (const SharingText& text : sharingTexts(instances))
                settings.*text.member = call.reply().value(text.key);
            settings.instances = instances;
        }
    }
    call.reportError();
    return settings;
}

bool AspUsbHostSettingsFacade::setUsbHostAdvancedSettings(AspUsbHostDevices settings,
                                                          AspWebAppErrorCodes& error)
{
    const AspUsbHostInstList& instances = settings.advanced.instances;
    ParamMap values;
    for (const SharingText& text : sharingTexts(instances))
        values.insert(text.key, settings.advanced.*text.member);
    return changeUnlessDenied(*this, error,
                              usbHostCall(&U::setUsbHostAdvancedSettings, instances.sambaInstance,
                                          instances.connInstance, values));
}

} // namespace quorvel
