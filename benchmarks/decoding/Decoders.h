#pragma once

#include <quorvel/ParamMap.h>

#include "assembly/Cpe.h"
#include "support/ReadyGateway.h"

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

namespace quorvel::bench
{

/// An operation that decodes a list or a record, and what it is given to decode.
struct Decoder {
    std::string name;
    /// The replies of a gateway, one for each exchange, with so many entries in all; the call log
    /// counts calls.
    std::vector<ParamMap> (*replies)(int entries);
    /// Calls the operation; how many items it found, at least 1 for a record.
    int (*decode)(const boost::shared_ptr<Cpe>& gateway);
    /// How many entries an item takes; 0 for a record, which takes a few of all entries.
    int entriesPerItem;
    /// Left out where they grow with the reply: writing them is another matter.
    Requests requests = Requests::Written;
};

const std::vector<Decoder>& decoders();

} // namespace quorvel::bench
