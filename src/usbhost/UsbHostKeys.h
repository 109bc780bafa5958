#pragma once

#include "protocol/Latin1.h"

/// The USB host's own commands and keys, and those of the sharing objects.
namespace quorvel::wire
{

inline constexpr QLatin1String deviceList = "device_list"_latin1;
inline constexpr QLatin1String diskMount = "disk_mount"_latin1;
inline constexpr QLatin1String diskUnmount = "disk_unmount"_latin1;
inline constexpr QLatin1String hostname = "hostname"_latin1;
inline constexpr QLatin1String description = "Description"_latin1;
inline constexpr QLatin1String workGroup = "WorkGroup"_latin1;

} // namespace quorvel::wire
