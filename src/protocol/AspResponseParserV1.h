#pragma once

#include "protocol/ResponseParser.h"

namespace quorvel
{

/// Dialect 1.0.0.
class AspResponseParserV1 : public ResponseParser
{
public:
    bool parse(const QString& response, ParamMap& result) override;
};

} // namespace quorvel
