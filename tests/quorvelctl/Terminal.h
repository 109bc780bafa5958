#pragma once

#include "QuorvelctlRun.h"

#include <chrono>

namespace quorvelctl::test
{

/// A terminal as a program sees it, with us at its keyboard and screen.
class Terminal
{
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Starts quorvelctl with this terminal; its results go to a pipe.
    void start(QProcess& process, const std::string& arguments, const Surroundings& surroundings);
    /// The same with the results on its screen.
    void startAll(QProcess& process, const std::string& arguments,
                  const Surroundings& surroundings);

    void type(const std::string& text);

    /// What the screen shows, read until it shows `text` or nothing more for `patience`.
    std::string readUntil(const std::string& text, std::chrono::seconds patience);

private:
    int keyboard;
    int device = -1;
    QString name;
    std::string shown;
};

} // namespace quorvelctl::test
