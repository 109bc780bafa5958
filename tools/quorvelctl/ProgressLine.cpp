#include "ProgressLine.h"

#include <iostream>
#include <unistd.h>

namespace quorvelctl
{

ProgressLine::ProgressLine() : onTerminal(isatty(STDERR_FILENO) == 1) {}

ProgressLine::~ProgressLine()
{
    show(QString());
    if (width > 0)
        std::cerr << '\r' << std::flush;
}

void ProgressLine::show(const QString& text)
{
    if (!onTerminal)
        return;
    // Blanks wipe out what a longer text has left.
    width = qMax(width, text.size());
    std::cerr << '\r' << text.leftJustified(width).toStdString() << std::flush;
}

} // namespace quorvelctl
