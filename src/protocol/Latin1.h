#pragma once

#include <QLatin1String>
#include <cstddef>

namespace quorvel
{

/// A text that is known when the library is compiled: "key"_latin1. QLatin1String alone counts its
/// characters by strlen, and not every compiler can do that before the program runs.
constexpr QLatin1String operator""_latin1(const char* text, std::size_t size)
{
    return QLatin1String(text, static_cast<int>(size));
}

} // namespace quorvel
