#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvel::simulator
{

/// What can go wrong with a gateway. The word behind each is its name in texts (`Fault::fromText`).
enum class FaultKind {
    /// `refuse`: for ever, the port is closed; for n times, the next n connections are accepted
    /// and reset at once, since a closed port can't count. Target and argument play no part.
    Refuse,
    /// `close`: the connection is closed before a byte of the reply.
    Close,
    /// `reset`: the connection is reset in the middle of the reply. Argument: bytes sent before
    /// that; half of the reply unless given.
    Reset,
    /// `hang`: no reply, the connection stays open until the client gives up or the gateway goes
    /// down; but the restart that the request itself orders leaves it open.
    Hang,
    /// `delay`: the whole reply, but late. Argument: milliseconds (1000).
    Delay,
    /// `drip`: the reply goes out byte by byte. Argument: milliseconds between two bytes (100).
    Drip,
    /// `truncate`: the length of the whole body, but only half of it, then a close.
    Truncate,
    /// `wrong-length`: the whole body under a wrong length, then a close. Argument: what is added
    /// to the true length (100; may be negative).
    WrongLength,
    /// `garbage`: bytes that are no HTTP, then a close. Argument: how many (5000).
    Garbage,
    /// `html`: status 200 and a page instead of a reply.
    Html,
    /// `empty`: status 200 and an empty body.
    Empty,
    /// `http`: the reply's body under another HTTP status. Argument: the status (500). One of
    /// 301 to 308 carries the header `Location: /`.
    HttpStatus,
    /// `bad-utf8`: a reply whose text holds bytes that are no UTF-8.
    InvalidUtf8,
    /// `error`: the web application answers with an error code and does nothing. Argument: the
    /// code (11).
    ErrorCode,
    /// `session-expired`: the session of the request is unknown from now on. Argument: how many
    /// requests pass before each time (0).
    SessionExpired,
    /// `oversized`: a well-formed reply with a long entry. Argument: its bytes (5 MiB).
    Oversized,
    /// `too-deep`: a well-formed reply of nested elements. Argument: how many levels (257).
    TooDeep,
    /// `command-fails`: one command of a request is refused with code 11, so that nothing of the
    /// request happens. Argument: which, counted from 1 (1). A shorter request passes unharmed.
    CommandFails,
    /// `power-cut`: the gateway loses its power while it works on one command of a request:
    /// nothing of the request happens, no reply, and the gateway starts anew. Argument: which
    /// command, counted from 1 (1). A shorter request passes unharmed.
    PowerCut,
    /// `radio-restart`: a request that applies a radio is carried out, but its client loses the
    /// connection before a byte of the reply, as the radio starts anew. Argument: how many
    /// milliseconds the port is closed then (0); sessions and settings outlast it. Other requests
    /// pass unharmed.
    RadioRestart
};

/// Which requests a fault may hit. The kinds `error`, `session-expired`, `command-fails`,
/// `power-cut` and `radio-restart` hit requests to the web application only, whatever the target
/// says.
enum class FaultTarget { Any, Login, WebApp, Probe };

/// A fault to inject, and when.
struct Fault {
    FaultKind kind;
    /// The kind's own number; its default stands beside the kind.
    std::optional<int> argument = std::nullopt;
    /// How many requests it hits before it is over; 0 means until it is cleared.
    int times = 0;
    /// How many requests that it could hit pass unharmed first.
    int after = 0;
    FaultTarget target = FaultTarget::Any;
    /// Hits only requests that hold a command, get, set or query with this key; empty means any.
    std::string key = {};
    /// Whether the gateway does what the request asks before the reply is spoilt (as when only
    /// the reply is lost), or does nothing. No kind that answers for the gateway itself looks at
    /// it: `refuse`, `error`, `session-expired`, `command-fails`, `power-cut`.
    bool takesEffect = true;

    /// Reads `NAME[:ARGUMENT]` and, behind it, separated by blanks or commas and in any order:
    /// a number (`times`), `times=N`, `after=N`, `on=any|login|webapp|probe`, `key=KEY`,
    /// `effect=yes|no`. So `hang 3` is three requests without a reply, and
    /// `close,1,key=apply,effect=yes` the lost reply to a write.
    /// Nothing on a text that it doesn't understand, with the reason in `error`.
    static std::optional<Fault> fromText(const std::string& text, std::string* error = nullptr);

    /// The name of a kind, as `wrong-length`.
    static std::string name(FaultKind kind);

    /// The names of all kinds.
    static std::vector<std::string> names();
};

} // namespace quorvel::simulator
