#pragma once

#include <quorvel/AspAdslSettings.h>
#include <quorvel/ParamMap.h>

namespace quorvel
{

/// The entries in which a connection over DSL is handed to the implementor; none for a link type
/// that isn't known there.
ParamMap entriesOverDsl(const QString& wan, const QString& dsl, const AspAdslSettings& settings);

/// The same for a connection over Ethernet.
ParamMap entriesOverEthernet(const QString& wan, const AspAdslSettings& settings);

} // namespace quorvel
