#include "ObjectKind.h"

namespace quorvel::simulator
{

namespace
{

const std::string deviceLabel = "DevId:";
const char* const diskType = "0";

// The number behind the keys of the disk with this id, or an empty text.
std::string diskNumber(const Values& devices, const std::string& id)
{
    const std::string key = "DeviceId";
    for (auto value = devices.lower_bound(key);
         value != devices.end() && value->first.compare(0, key.size(), key) == 0; ++value) {
        const std::string number = value->first.substr(key.size());
        const auto type = devices.find("Type" + number);
        if (value->second == id && type != devices.end() && type->second == diskType)
            return number;
    }
    return {};
}

// What is plugged in is no configuration: all of it is run-time values, called as on the wire.
class UsbHost : public ObjectKind
{
public:
    ErrorCode query(Work& work, const Command& command) const override
    {
        if (command.key != "device_list")
            return ObjectKind::query(work, command);
        const Objects& objects = work.state.status.read();
        if (const auto port = objects.find(command.instance); port != objects.end()) {
            for (const auto& [key, value] : port->second)
                work.answer(command, key, value);
        }
        return ErrorCode::None;
    }

    ErrorCode command(Work& work, const Command& command) const override
    {
        const bool mounts = command.key == "disk_mount";
        if (!mounts && command.key != "disk_unmount")
            return ObjectKind::command(work, command);
        if (work.state.transactions[work.session].count(command.instance) == 0)
            return ErrorCode::NoTransaction;
        if (command.value.compare(0, deviceLabel.size(), deviceLabel) != 0)
            return ErrorCode::BadValue;
        Values& devices = work.state.status.write()[command.instance];
        const std::string disk = diskNumber(devices, command.value.substr(deviceLabel.size()));
        if (disk.empty())
            return ErrorCode::BadValue;
        devices["Status" + disk] = mounts ? "1" : "0";
        return ErrorCode::None;
    }
};

} // namespace

const ObjectKind& usbHost()
{
    static const UsbHost kind;
    return kind;
}

} // namespace quorvel::simulator
