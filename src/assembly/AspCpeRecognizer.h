#pragma once

#include "assembly/CpeRecognizer.h"

namespace quorvel
{

/// Recognises gateways with the web application, by their list of managers. It works with parts of
/// its own that it wires by hand, since the real ones depend on what it finds.
class AspCpeRecognizer : public CpeRecognizer
{
public:
    bool recognize(const AuthenticationInfo& info, ParamMap& parameters) override;
};

} // namespace quorvel
