#pragma once

#include <QLatin1String>

/// The USB host's own commands and keys, and those of the sharing objects.
namespace quorvel::wire
{

inline constexpr QLatin1String deviceList("device_list");
inline constexpr QLatin1String diskMount("disk_mount");
inline constexpr QLatin1String diskUnmount("disk_unmount");
inline constexpr QLatin1String hostname("hostname");
inline constexpr QLatin1String description("Description");
inline constexpr QLatin1String workGroup("WorkGroup");

} // namespace quorvel::wire
