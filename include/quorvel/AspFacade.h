#pragma once

#include <quorvel/AspWebAppErrorCodes.h>
#include <quorvel/ParamMap.h>
#include <quorvel/QuorvelApi1Export.h>

#include <boost/shared_ptr.hpp>
#include <cstdint>

namespace quorvel
{

class Cpe;

/// Base of all settings facades: it holds the gateway and knows how a reply becomes an error code.
///
/// What holds for every operation of every facade:
///
/// - **Blocking.** An operation that talks to the gateway blocks its caller until the gateway has
///   answered, for at most 20 seconds per exchange; each operation tells how many exchanges it
///   makes if that is not one. A gateway whose reply headers never end may cost five seconds more.
///   A request without a stored session logs in first, and a request that meets an expired session
///   logs in and is repeated: each such round adds two exchanges, and as long as a gateway hands
///   out sessions and refuses each at once, the rounds go on.
/// - **Events.** Queued events of the calling thread, timers included, run during the wait. An
///   event that calls into the same family of the same gateway waits for ever, because the family
///   is locked by the call that it interrupts; an operation that says it takes no lock fails
///   there with AspWebAppRequestFailed instead.
/// - **Application.** A QCoreApplication must exist. Without one every request fails with
///   AspWebAppRequestFailed and an ERROR line. If the application quits during a wait, the request
///   fails with AspWebAppRequestFailed.
/// - **Threads.** Facades may be used from any thread, with or without an event loop, and one
///   facade from several threads at once unless its class says otherwise: operations of one
///   family of one gateway are put in a row, those of different families run side by side.
/// - **Errors.** Nothing throws. The last argument is overwritten on entry and again after the
///   request. On failure the stated default is returned.
/// - **Log.** Most values read go to the host's logger at DEBUG, most failures at ERROR. The DEBUG
///   lines of a login hold its session in clear, and those of a class that says so passwords.
/// - **Ownership.** A facade shares the gateway's parts, so it stays usable when the object that
///   made it is gone. A request that is waiting then is not disturbed.
class QUORVEL_API AspFacade
{
public:
    /// Shares `cpe`, which may be empty: then every operation gives its default and
    /// AspWebAppCpeNull.
    explicit AspFacade(boost::shared_ptr<Cpe> cpe);
    /// The copy shares the gateway.
    AspFacade(const AspFacade& other);
    /// Shares the other facade's gateway from now on.
    AspFacade& operator=(const AspFacade& other);
    /// Gives up the share in the gateway.
    virtual ~AspFacade();

protected:
    /// Whether the gateway can be asked at all: AspWebAppNoError, AspWebAppCpeNull or
    /// AspWebAppCpeNotBuilt. The latter two are logged at ERROR. Sends nothing.
    AspWebAppErrorCodes validateCpe();

    /// What a reply, or the lack of one, means to the host. Sends nothing.
    AspWebAppErrorCodes getErrorCode(const ParamMap& result);

    /// The gateway; may be empty.
    boost::shared_ptr<Cpe> cpe;

private:
    friend class FacadeCall;

    std::int32_t reserved;
};

} // namespace quorvel
