#pragma once

#include <QByteArray>

namespace quorvel::bench
{

/// What a gateway of dialect 1.0.1 with most functions answers to the questions of recognition.
extern const QByteArray recognitionReply;

/// A reply of dialect 1.0.1 with `entries` entries: the status, the firmware and, behind them,
/// leases, so that an entry takes about 40 bytes.
QByteArray fixedReply(int entries);

/// The same entries, as many gateways of this dialect send them: an object for each, holding a key
/// and a value.
QByteArray fixedReplyOfPairs(int entries);

/// Entries of a reply with nothing but the answer, of one of about 10 kB and of one of 1 MB.
constexpr int smallReply = 2;
constexpr int middleReply = 260;
constexpr int largeReply = 23000;

} // namespace quorvel::bench
