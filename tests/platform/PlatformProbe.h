#pragma once

#include "support/Text.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace quorvel::test
{

/// Runs the probe with these variables in its environment, and gives back what it wrote.
inline QString runProbe(std::initializer_list<std::pair<const char*, QString>> variables,
                        const QStringList& keys, bool standardError)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(text("OSTRA_LOG_LEVEL"));
    environment.remove(text("OSTRA_CONFIG_FILE"));
    for (const auto& [name, value] : variables)
        environment.insert(text(name), value);
    QProcess probe;
    probe.setProcessEnvironment(environment);
    probe.start(text(QUORVEL_PLATFORM_PROBE), keys);
    EXPECT_TRUE(probe.waitForFinished());
    EXPECT_EQ(probe.exitCode(), 0);
    return QString::fromUtf8(standardError ? probe.readAllStandardError()
                                           : probe.readAllStandardOutput());
}

} // namespace quorvel::test
