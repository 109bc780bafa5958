#pragma once

#include "assembly/CpeBuilder.h"

#include <QMutex>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

/// Hands out the builder for a kind of gateway.
class CpeBuilderFactory
{
public:
    static boost::shared_ptr<CpeBuilderFactory> getInstance();

    virtual ~CpeBuilderFactory() = default;

    /// Null for type 1, which has no builder; for every other type one for gateways with the web
    /// application.
    boost::shared_ptr<CpeBuilder> createBuilder(const int& type);

private:
    CpeBuilderFactory() = default;
    Q_DISABLE_COPY(CpeBuilderFactory)

    static boost::shared_ptr<CpeBuilderFactory> _instance;
    static QMutex _objectLock;
};

} // namespace quorvel
