#pragma once

#include <string>
#include <vector>

namespace quorvel::simulator
{

/// One request that reached the gateway, and what went back. Everything as on the wire, secrets
/// included.
struct Exchange {
    std::string method;
    std::string path;
    /// Request line and headers, each with its line end.
    std::string requestHead;
    std::string requestBody;
    /// Status line and headers, each with its line end; empty if nothing that resembles them was
    /// sent.
    std::string replyHead;
    /// What was sent behind the head, cut where a fault cut it.
    std::string replyBody;
    /// The name of the fault that hit the request, or empty.
    std::string fault;
};

/// The exchanges as readable text, one after the other, for people and for golden files. The
/// values of passwords, keys, PINs, tokens, cookies and sessions read "********".
std::string toTranscript(const std::vector<Exchange>& exchanges);

} // namespace quorvel::simulator
