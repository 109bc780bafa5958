#include "manual/Manual.h"

#include "manual/Completion.h"
#include "manual/Description.h"
#include "manual/ManPage.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace quorvel::manual
{

namespace
{

std::string written(const CLI::App& app, const std::string& form)
{
    const Command program = describe(app);
    if (form == "man")
        return manPage(program, app.version());
    return form == "bash" ? bashCompletion(program) : zshCompletion(program);
}

} // namespace

void addManual(CLI::App& app)
{
    const auto print = [&app](const std::string& form) {
        // Like a version, it is printed instead of running anything.
        throw CLI::CallForVersion(written(app, form), 0);
    };
    app.add_option_function<std::string>("--manual", print, "Print the manual page or a completion")
        ->check(CLI::IsMember({"man", "bash", "zsh"}))
        ->group(std::string());
}

} // namespace quorvel::manual
