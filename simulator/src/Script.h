#pragma once

#include "FaultPlan.h"
#include "Http.h"

#include <chrono>
#include <optional>
#include <string>

namespace quorvel::simulator
{

/// What a connection does about one request.
struct Script {
    enum class End {
        KeepOpen,
        Close,
        Reset,
        /// Stays open without a byte until the client goes.
        Hold
    };

    std::string bytes;
    /// Before the first byte.
    std::chrono::milliseconds delay{0};
    /// Between two bytes; zero sends everything at once.
    std::chrono::milliseconds pace{0};
    End end = End::KeepOpen;
    /// How long the gateway goes down as soon as the bytes are on their way.
    std::optional<std::chrono::milliseconds> down = std::nullopt;
    /// Where in `bytes` the head ends, for the record.
    std::size_t headSize = 0;
};

/// The script of a reply that arrives whole.
Script scriptOf(const HttpRequest& request, const HttpReply& reply);

/// The script of a reply that the fault spoils.
Script spoiltScript(const HttpRequest& request, const HttpReply& reply, const Fault& fault,
                    const std::string& dialect);

} // namespace quorvel::simulator
