#pragma once

#include "assembly/CpeBuilder.h"

namespace quorvel
{

/// Builds gateways with the web application.
class TelvoraCpeBuilderAspV1 : public CpeBuilder
{
public:
    bool buildResponseParser() override;
    bool buildRequestFormatter() override;
    bool buildSettingsImplementors() override;

private:
    bool canRun(const char* step) const;
    bool speaksNewerDialect() const;
};

} // namespace quorvel
