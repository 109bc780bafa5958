#pragma once

#include "protocol/ResponseParser.h"

namespace quorvel
{

/// Dialect 1.0.1.
class AspResponseParserV2 : public ResponseParser
{
public:
    bool parse(const QString& response, ParamMap& result) override;
};

} // namespace quorvel
