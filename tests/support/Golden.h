#pragma once

#include "support/Printing.h"

#include <QString>
#include <gtest/gtest.h>

namespace quorvel::test
{

/// Compares a text with the file tests/golden/<name>.txt, whole. With UPDATE_GOLDEN=1 in the
/// environment the file is rewritten instead, to be reviewed like code.
testing::AssertionResult matchesGolden(const QString& name, const QString& text);

} // namespace quorvel::test
