#include "Terminal.h"

#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace quorvelctl::test
{

Terminal::Terminal() : keyboard(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
{
    if (keyboard < 0 || grantpt(keyboard) != 0 || unlockpt(keyboard) != 0) {
        ADD_FAILURE() << "no terminal to be had";
        return;
    }
    name = QString::fromLocal8Bit(ptsname(keyboard));
    // Kept open, so that the screen stays readable when the program has ended.
    device = open(ptsname(keyboard), O_RDWR | O_NOCTTY | O_CLOEXEC);
}

Terminal::~Terminal()
{
    close(device);
    close(keyboard);
}

void Terminal::start(QProcess& process, const std::string& arguments,
                     const Surroundings& surroundings)
{
    process.setStandardInputFile(name);
    process.setStandardErrorFile(name);
    test::start(process, arguments, surroundings);
}

void Terminal::startAll(QProcess& process, const std::string& arguments,
                        const Surroundings& surroundings)
{
    process.setStandardOutputFile(name);
    start(process, arguments, surroundings);
}

void Terminal::type(const std::string& text)
{
    EXPECT_EQ(write(keyboard, text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

std::string Terminal::readUntil(const std::string& text, std::chrono::seconds patience)
{
    pollfd screen{keyboard, POLLIN, 0};
    char bytes[4096];
    while (shown.find(text) == std::string::npos &&
           poll(&screen, 1, static_cast<int>(patience.count() * 1000)) > 0) {
        const ssize_t number = read(keyboard, bytes, sizeof bytes);
        if (number <= 0)
            break;
        shown.append(bytes, static_cast<std::size_t>(number));
    }
    return shown;
}

} // namespace quorvelctl::test
