#pragma once

#include <quorvel/ParamMap.h>

#include "support/BuiltGateway.h"
#include "support/Golden.h"
#include "support/Text.h"
#include "support/Transcript.h"

#include <functional>
#include <ostream>

namespace quorvel::test
{

/// One operation of an implementor and the name of its golden transcript.
template <typename Implementor>
struct RequestCase {
    const char* name;
    std::function<bool(Implementor&, ParamMap&)> operation;
};

template <typename Implementor>
void PrintTo(const RequestCase<Implementor>& requestCase, std::ostream* out)
{
    *out << requestCase.name;
}

/// The name of a case's test.
struct CaseName {
    template <typename Info>
    std::string operator()(const Info& info) const
    {
        return info.param.name;
    }
};

} // namespace quorvel::test
