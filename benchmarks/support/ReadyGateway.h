#pragma once

#include <quorvel/ParamMap.h>

#include "assembly/Cpe.h"

#include <QString>
#include <boost/shared_ptr.hpp>
#include <vector>

namespace quorvel::bench
{

/// A gateway of the newest kind with all families, as the builder puts it together.
boost::shared_ptr<Cpe> builtGateway(const QString& address);

/// Whether an operation's requests are written as ever or left out.
enum class Requests { Written, LeftOut };

/// The same whose exchanges take no time: each request is answered at once with the next of
/// `replies`, from the first again behind the last, and they are ready maps already. So what an
/// operation of a facade takes is what its decoder takes, and its requests if they are written.
boost::shared_ptr<Cpe> readyGateway(const std::vector<ParamMap>& replies, Requests requests);

} // namespace quorvel::bench
