#pragma once

#include <quorvel/AspUsbHostSettingsFacade.h>

#include "support/FacadeOnGateway.h"
#include "support/Golden.h"
#include "support/Text.h"
#include "support/Transcript.h"

namespace quorvel::test
{

/// A USB host facade on the newest kind of gateway.
using UsbHostFacade = FacadeOnGateway<AspUsbHostSettingsFacade>;

/// All fields of a record in their order, behind bars.
QString shown(const AspUsbHostAdvancedSettings& settings);
/// A record per line: printers, disks, sharing.
QStringList shown(const AspUsbHostDevices& devices);

/// Nothing, as `shown` gives it.
inline const char* const noSharing = "sharing||||";

} // namespace quorvel::test
