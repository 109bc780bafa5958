#pragma once

#include <QByteArray>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvel::bench
{

/// What the server notes of its requests, in memory that it shares with the measured process.
struct RequestLedger {
    std::atomic<std::uint64_t> requests{0};
    std::atomic<std::size_t> lastSize{0};
    char last[4096];
};

/// A listening socket and what is answered there.
struct FixedPort {
    int listener;
    QByteArray firmware; ///< to a question for the firmware
    QByteArray managers; ///< to any other
};

/// A whole HTTP answer around a body.
QByteArray answerWith(const QByteArray& body);

/// Answers what comes in on these ports, until the process is killed.
[[noreturn]] void serveForEver(const std::vector<FixedPort>& ports, RequestLedger& ledger);

} // namespace quorvel::bench
