#pragma once

#include "protocol/RequestFormatter.h"

namespace quorvel
{

/// Dialect 1.0.0.
class AspRequestFormatterV1 : public RequestFormatter
{
public:
    QString formatRequest() override;
    QString formatCommands() override;
    QString wrapCommands(const QString& commands) override;
};

} // namespace quorvel
