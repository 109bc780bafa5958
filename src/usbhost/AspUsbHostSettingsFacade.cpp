#include <quorvel/AspUsbHostSettingsFacade.h>

#include "access/ReplyReading.h"
#include "protocol/Vocabulary.h"
#include "usbhost/UsbHostCall.h"
#include "usbhost/UsbHostKeys.h"

#include <algorithm>
#include <set>

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

/// The numbers below `count` under which a reply has a device. Found by the reply's entries, not by
/// counting up: the gateway may claim billions.
std::set<int> deviceNumbers(const ParamMap& reply, int count)
{
    std::set<int> numbers;
    const QString prefix = usbHostKey("Type");
    for (auto entry = reply.lowerBound(prefix);
         entry != reply.cend() && entry.key().startsWith(prefix); ++entry) {
        const QString digits = entry.key().mid(prefix.size());
        const int number = digits.toInt();
        if (number >= 0 && number < count && QString::number(number) == digits)
            numbers.insert(number);
    }
    return numbers;
}

AspUsbHostDevices devicesIn(const ParamMap& reply)
{
    AspUsbHostDevices devices;
    const QString prefix = usbHostKey("");
    for (const int index : deviceNumbers(reply, reply.value(usbHostKey("DeviceCount")).toInt())) {
        const QString number = QString::number(index);
        const QString type = reply.value(usbHostKey("Type") + number);
        if (type == QLatin1String("0")) {
            devices.disks.append(AspUsbHostDisk());
            readTexts(devices.disks.last(), diskFields, reply, prefix, number);
        } else if (type == QLatin1String("1")) {
            devices.printers.append(AspUsbHostPrinter());
            readTexts(devices.printers.last(), printerFields, reply, prefix, number);
        }
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
