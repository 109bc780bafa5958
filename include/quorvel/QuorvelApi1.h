#pragma once

/// \file
/// Everything that a host may use.

#include <quorvel/Asp3GConnectionMode.h>
#include <quorvel/Asp3GSettings.h>
#include <quorvel/Asp3GSimPinStatus.h>
#include <quorvel/AspAdslSettings.h>
#include <quorvel/AspAdslSettingsFacade.h>
#include <quorvel/AspAnnexMode.h>
#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspCpeFlyweightFactory.h>
#include <quorvel/AspCpeProperties.h>
#include <quorvel/AspDeviceWarrantyInformation.h>
#include <quorvel/AspDhcpSettings.h>
#include <quorvel/AspDhcpsClient.h>
#include <quorvel/AspDslStatus.h>
#include <quorvel/AspFacade.h>
#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspGwInternetConnection.h>
#include <quorvel/AspPppoxSettings.h>
#include <quorvel/AspPppoxState.h>
#include <quorvel/AspPvcSettings.h>
#include <quorvel/AspRfc2684Encapsulation.h>
#include <quorvel/AspRussianPppoxSettings.h>
#include <quorvel/AspStaticSettings.h>
#include <quorvel/AspVpnSettings.h>
#include <quorvel/AspWanDetails.h>
#include <quorvel/AspWanSettingsFacade.h>
#include <quorvel/AspWanVlanSettings.h>
#include <quorvel/AspWebAppErrorCodes.h>
#include <quorvel/AuthenticationInfo.h>
#include <quorvel/CpeLoginResult.h>
#include <quorvel/ParamMap.h>
#include <quorvel/TelvoraCpeRouterMode.h>
