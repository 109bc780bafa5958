#include "Program.h"

#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvel::simulator::tests
{

Program::Program(const std::vector<std::string>& arguments, const std::string& path)
{
    int out[2];
    int err[2];
    if (pipe(out) != 0 || pipe(err) != 0)
        return;
    std::vector<char*> argv{const_cast<char*>(path.c_str())};
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    process = fork();
    if (process == 0) {
        dup2(out[1], STDOUT_FILENO);
        dup2(err[1], STDERR_FILENO);
        for (const int end : {out[0], out[1], err[0], err[1]})
            close(end);
        execv(path.c_str(), argv.data());
        _exit(127);
    }
    close(out[1]);
    close(err[1]);
    pipes[0] = out[0];
    pipes[1] = err[0];
}

Program::~Program()
{
    if (process > 0) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    for (const int end : pipes)
        close(end);
}

std::string Program::line()
{
    while (texts[0].find('\n') == std::string::npos && read(0)) {
    }
    return texts[0].substr(0, texts[0].find('\n'));
}

int Program::end(int signal)
{
    kill(process, signal);
    return wait();
}

int Program::wait()
{
    for (const int channel : {0, 1}) {
        while (read(channel)) {
        }
    }
    int status = 0;
    waitpid(process, &status, 0);
    process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool Program::read(int channel)
{
    constexpr int patience = 30000;
    pollfd readable{pipes[channel], POLLIN, 0};
    if (poll(&readable, 1, patience) <= 0) {
        ADD_FAILURE() << "the program neither says anything nor ends";
        kill(process, SIGKILL);
        return false;
    }
    char bytes[4096];
    const auto size = ::read(pipes[channel], bytes, sizeof bytes);
    if (size > 0)
        texts[channel].append(bytes, static_cast<std::size_t>(size));
    return size > 0;
}

} // namespace quorvel::simulator::tests
