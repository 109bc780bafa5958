#pragma once

/// \file
/// Everything that a host may use.

#include <quorvel/Asp3GConnectionMode.h>
#include <quorvel/Asp3GSettings.h>
#include <quorvel/Asp3GSimPinStatus.h>
#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspCpeFlyweightFactory.h>
#include <quorvel/AspCpeProperties.h>
#include <quorvel/AspDeviceWarrantyInformation.h>
#include <quorvel/AspDhcpsClient.h>
#include <quorvel/AspFacade.h>
#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspGwInternetConnection.h>
#include <quorvel/AspUsbHostDevices.h>
#include <quorvel/AspUsbHostSettingsFacade.h>
#include <quorvel/AspVoipAccount.h>
#include <quorvel/AspVoipCallHistory.h>
#include <quorvel/AspVoipCallHistoryFilter.h>
#include <quorvel/AspVoipSettings.h>
#include <quorvel/AspVoipSettingsFacade.h>
#include <quorvel/AspWanDetails.h>
#include <quorvel/AspWanSettingsFacade.h>
#include <quorvel/AspWebAppErrorCodes.h>
#include <quorvel/AuthenticationInfo.h>
#include <quorvel/CpeLoginResult.h>
#include <quorvel/ParamMap.h>
#include <quorvel/TelvoraCpeRouterMode.h>
