#pragma once

#include "internet/AdslSettingsImplementor.h"
#include "internet/InternetFixture.h"

#include <vector>

namespace quorvel::test
{

/// An entry of a connection that differs from the complete one; null takes it away.
struct Change {
    const char* key;
    const char* value;
};

/// The write of a connection in which an entity of every kind is named, and each text set and
/// unlike the others, but for `changes`. Over Ethernet only PPP types have a PPP entity.
struct WrittenConnection {
    Link link;
    const char* type;
    std::vector<Change> changes;

    /// Writes it to the WAN "wan-3" and the line "dsl-1".
    bool write(AdslSettingsImplementor& implementor, ParamMap& result) const;
};

} // namespace quorvel::test
