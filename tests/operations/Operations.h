#pragma once

#include <quorvel/AspAdslSettingsFacade.h>
#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspUsbHostSettingsFacade.h>
#include <quorvel/AspVoipSettingsFacade.h>
#include <quorvel/AspWanSettingsFacade.h>
#include <quorvel/AspWirelessSettingsFacade.h>
#include <quorvel/AspWirelessSettingsFacadeManager.h>
#include <quorvel/AspWirelessSettingsFacadeNG.h>

#include "assembly/Cpe.h"
#include "support/Text.h"

#include <boost/shared_ptr.hpp>
#include <functional>
#include <string>
#include <vector>

namespace quorvel::test
{

/// The handle, with what only a derived class may call.
class OpenHandle : public AspCpeFacadeObject
{
public:
    using AspCpeFacadeObject::AspCpeFacadeObject;
    using AspCpeFacadeObject::refreshCpe;
};

/// A gateway as a host holds it: recognised, with every facade that there is.
struct AskedGateway {
    /// `dual` of the simulator, or what was built like it.
    AskedGateway(const AuthenticationInfo& info, const boost::shared_ptr<Cpe>& cpe);

    AuthenticationInfo info;
    OpenHandle handle;
    AspGeneralSettingsFacade general;
    AspAdslSettingsFacade internet;
    AspWanSettingsFacade wan;
    AspWirelessSettingsFacade older;
    AspWirelessSettingsFacadeNG newer;
    AspWirelessSettingsFacadeManager radios;
    AspVoipSettingsFacade voice;
    AspUsbHostSettingsFacade usbHost;
    /// Neither success nor any failure that occurs, so that a code left unwritten shows.
    AspWebAppErrorCodes error = static_cast<AspWebAppErrorCodes>(77);
};

/// An operation with its inputs, which suit `dual`. Each secret among them holds the word "secret".
struct Operation {
    const char* name;
    std::function<void(AskedGateway&)> run;
};

/// The operations of one class, each at least once. What follows a blank in the name of one tells
/// several calls of it apart.
struct OperationsOfClass {
    const char* className;
    std::vector<Operation> operations;
};

/// Calls an operation of a facade that has an error as its last argument.
template <typename Facade, typename Function, typename... Inputs>
std::function<void(AskedGateway&)> calling(Facade AskedGateway::*facade, Function function,
                                           const Inputs&... inputs)
{
    return [=](AskedGateway& gateway) {
        std::invoke(function, gateway.*facade, inputs..., gateway.error);
    };
}

/// Those that leave the gateway as it is.
std::vector<OperationsOfClass> allReads();
/// Those that change settings of the gateway. Each of these calls does change something.
std::vector<OperationsOfClass> allWrites();

} // namespace quorvel::test
