#include "manual/Manual.h"

#include "manual/Completion.h"
#include "manual/Description.h"
#include "manual/ManPage.h"

namespace quorvel::manual
{

namespace
{

std::string written(const commandline::CommandLine& line, const std::string& form)
{
    const Command program = describe(line.parser());
    if (form == "man")
        return manPage(program, line.version());
    return form == "bash" ? bashCompletion(program) : zshCompletion(program);
}

} // namespace

void addManual(commandline::CommandLine& line)
{
    const auto print = [&line](const std::string& form) {
        throw commandline::Answer{written(line, form)};
    };
    line.program()
        .addOption("--manual", print, "Print the manual page or a completion")
        .oneOf({"man", "bash", "zsh"})
        .hidden();
}

} // namespace quorvel::manual
