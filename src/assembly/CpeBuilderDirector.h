#pragma once

#include "assembly/CpeBuilder.h"

namespace quorvel
{

/// Turns an address and credentials into a finished Cpe: recognition, then the builder's steps.
class CpeBuilderDirector
{
public:
    CpeBuilderDirector() = default;
    virtual ~CpeBuilderDirector() = default;

    /// Null on any failure.
    virtual boost::shared_ptr<Cpe> buildCpe(boost::shared_ptr<CpeBuilder> builder,
                                            const AuthenticationInfo& info);

private:
    Q_DISABLE_COPY(CpeBuilderDirector)
};

} // namespace quorvel
