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

    /// The builder's steps alone, for a gateway that is recognised already. Null on any failure.
    static boost::shared_ptr<Cpe> assemble(CpeBuilder& builder, const ParamMap& parameters,
                                           const AuthenticationInfo& info);

private:
    Q_DISABLE_COPY(CpeBuilderDirector)
};

} // namespace quorvel
