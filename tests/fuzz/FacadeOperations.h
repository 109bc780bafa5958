#pragma once

#include <quorvel/AspWebAppErrorCodes.h>

#include "assembly/Cpe.h"

#include <QString>
#include <boost/shared_ptr.hpp>
#include <functional>
#include <vector>

namespace quorvel::fuzz
{

/// A call of a facade's operation on a gateway.
struct FacadeOperation {
    /// Gives the result as a text.
    std::function<QString(const boost::shared_ptr<Cpe>& cpe, AspWebAppErrorCodes& error)> call;
    /// Whether an unreadable answer is no failure.
    bool takesAnyAnswer = false;
};

/// The operations of all families. Inputs tell them by position, so new ones stand at the end.
const std::vector<FacadeOperation>& facadeOperations();

} // namespace quorvel::fuzz
