#pragma once

#include <CLI/App.hpp>

namespace quorvelctl
{

class Session;

/// Adds set-dsl and set-eth.
void addInternetWriting(CLI::App& group, Session& session);

} // namespace quorvelctl
