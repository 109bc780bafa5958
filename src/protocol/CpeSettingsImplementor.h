#pragma once

/// \file
/// The base of the implementors, for those that use its parts.

#include <quorvel/CpeSettingsImplementor.h>

#include "protocol/AuthenticationSettingsImplementor.h"
#include "protocol/CommandList.h"
#include "protocol/RequestExecutor.h"
#include "protocol/RequestFormatter.h"
#include "protocol/ResponseParser.h"
