#pragma once

#include <quorvel/AuthenticationInfo.h>
#include <quorvel/ParamMap.h>

namespace quorvel
{

/// Learns what the gateway at an address is.
class CpeRecognizer
{
public:
    CpeRecognizer() = default;
    virtual ~CpeRecognizer() = default;

    /// Whether `parameters` was filled with the gateway's functions. In any case it then holds the
    /// result of the login.
    virtual bool recognize(const AuthenticationInfo& info, ParamMap& parameters) = 0;

private:
    Q_DISABLE_COPY(CpeRecognizer)
};

} // namespace quorvel
