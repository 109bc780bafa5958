#pragma once

#include "protocol/ResponseParser.h"

namespace quorvel
{

/// Dialect 1.0.1 for replies that repeat a key: from the second on, repetitions in direct
/// succession are numbered, by a counter that runs on over the whole reply.
class AspResponseParser3g : public ResponseParser
{
public:
    bool parse(const QString& response, ParamMap& result) override;
};

} // namespace quorvel
