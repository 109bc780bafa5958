#pragma once

#include <QString>

namespace quorvelctl
{

/// A line on a terminal that tells how far a command is, and is gone at its end. Nothing where
/// nobody looks.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine();

    /// Takes the place of what was shown before.
    void show(const QString& text);

private:
    Q_DISABLE_COPY(ProgressLine)

    int width = 0;
    bool onTerminal;
};

} // namespace quorvelctl
