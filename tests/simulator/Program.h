#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace quorvel::simulator::tests
{

/// The simulator's program in a process of its own, killed at the end if it still runs.
class Program
{
public:
    /// `path` is a copy of the program, if not the one that was built.
    explicit Program(const std::vector<std::string>& arguments,
                     const std::string& path = GATEWAY_SIM);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The first line on standard output, without its end; waits for it.
    std::string line();
    /// Sends a signal and returns the exit status.
    int end(int signal);
    /// Waits for the end and returns the exit status, or -1 if a signal ended it.
    int wait();
    /// All of standard output and of standard error; after the end.
    const std::string& output() const { return texts[0]; }
    const std::string& errors() const { return texts[1]; }

private:
    bool read(int channel);

    pid_t process = -1;
    int pipes[2] = {-1, -1};
    std::string texts[2];
};

} // namespace quorvel::simulator::tests
