#include "commandline/CommandLine.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <iostream>
#include <utility>

namespace commandline
{

namespace
{

/// A program, the command of it that was given, the one below that and so on.
std::vector<const CLI::App*> commandsGiven(const CLI::App& program)
{
    std::vector<const CLI::App*> given{&program};
    while (!given.back()->get_subcommands().empty())
        given.push_back(given.back()->get_subcommands().front());
    return given;
}

void requireNoCommand(CLI::App& app)
{
    app.require_subcommand(0, 1);
    for (CLI::App* command : app.get_subcommands([](CLI::App*) { return true; }))
        requireNoCommand(*command);
}

} // namespace

Option Option::required()
{
    option->required();
    return *this;
}

Option Option::excludes(Option other)
{
    option->excludes(other.option);
    return *this;
}

Option Option::valueName(const std::string& name)
{
    option->type_name(name);
    return *this;
}

Option Option::showDefault()
{
    option->capture_default_str();
    return *this;
}

Option Option::environment(const std::string& variable)
{
    option->envname(variable);
    return *this;
}

Option Option::oneAtATime()
{
    option->allow_extra_args(false);
    return *this;
}

Option Option::separator(char separator)
{
    option->delimiter(separator);
    return *this;
}

Option Option::inPlace()
{
    option->trigger_on_parse();
    return *this;
}

Option Option::hidden()
{
    option->group(std::string());
    return *this;
}

Option Option::oneOf(std::vector<std::string> words)
{
    option->check(CLI::IsMember(std::move(words)));
    return *this;
}

Option Option::between(int min, int max)
{
    option->check(CLI::Range(min, max));
    return *this;
}

Option Option::positive()
{
    option->check(CLI::PositiveNumber);
    return *this;
}

Option Option::notNegative()
{
    option->check(CLI::NonNegativeNumber);
    return *this;
}

Option Option::check(std::function<std::string(const std::string&)> complaint,
                     const std::string& form)
{
    option->check(CLI::Validator(std::move(complaint), form));
    return *this;
}

Option Option::rewrite(std::function<std::string(std::string&)> complaint)
{
    option->transform(CLI::Validator(std::move(complaint), std::string()));
    return *this;
}

Command Command::addCommand(const std::string& name, const std::string& meaning)
{
    return Command(*app->add_subcommand(name, meaning));
}

Option Command::addOption(const std::string& name, std::string& value, const std::string& meaning)
{
    return Option(*app->add_option(name, value, meaning));
}

Option Command::addOption(const std::string& name, int& value, const std::string& meaning)
{
    return Option(*app->add_option(name, value, meaning));
}

Option Command::addOption(const std::string& name, std::vector<std::string>& values,
                          const std::string& meaning)
{
    return Option(*app->add_option(name, values, meaning));
}

Option Command::addOption(const std::string& name, std::optional<std::string>& value,
                          const std::string& meaning)
{
    return Option(*app->add_option(name, value, meaning));
}

Option Command::addOption(const std::string& name, std::optional<int>& value,
                          const std::string& meaning)
{
    return Option(*app->add_option(name, value, meaning));
}

Option Command::addOption(const std::string& name, std::optional<bool>& value,
                          const std::string& meaning)
{
    return Option(*app->add_option(name, value, meaning));
}

Option Command::addOption(const std::string& name, std::function<void(const std::string&)> take,
                          const std::string& meaning)
{
    return Option(*app->add_option_function(name, take, meaning));
}

Option Command::addFlag(const std::string& name, bool& value, const std::string& meaning)
{
    return Option(*app->add_flag(name, value, meaning));
}

Option Command::addFlag(const std::string& name, std::function<void()> take,
                        const std::string& meaning)
{
    return Option(*app->add_flag_callback(name, std::move(take), meaning));
}

void Command::callback(std::function<void()> run)
{
    app->callback(std::move(run));
}

void Command::addRemark(const std::string& text)
{
    app->footer(text + "\n\n" + app->get_footer());
}

CommandLine::CommandLine(const std::string& program, const std::string& meaning)
    : app(std::make_unique<CLI::App>(meaning, program))
{
}

CommandLine::~CommandLine() = default;

void CommandLine::setVersion(const std::string& version)
{
    app->set_version_flag("--version", version);
}

void CommandLine::setFooter(const std::string& text)
{
    app->footer(text);
}

void CommandLine::takeOptionsAnywhere()
{
    app->fallthrough();
}

void CommandLine::letCommandsLack()
{
    requireNoCommand(*app);
}

void CommandLine::whenRead(std::function<void()> call)
{
    app->parse_complete_callback(std::move(call));
}

bool CommandLine::run(int argc, char** argv)
{
    try {
        app->parse(argc, argv);
        return true;
    } catch (const Answer& answer) {
        std::cout << answer.text << std::endl;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0)
            throw Misuse{error.what()};
        app->exit(error); // prints help or version
    }
    return false;
}

void CommandLine::run(const std::string& line)
{
    try {
        app->parse(line);
    } catch (const CLI::ParseError& error) {
        throw Misuse{error.what()};
    }
}

std::string CommandLine::version() const
{
    return app->version();
}

std::string CommandLine::given() const
{
    std::string names;
    for (const CLI::App* command : commandsGiven(*app))
        names += (names.empty() ? "" : " ") + command->get_name();
    return names;
}

bool CommandLine::lacksCommand() const
{
    const CLI::App& last = *commandsGiven(*app).back();
    return !last.get_subcommands([](const CLI::App*) { return true; }).empty();
}

} // namespace commandline
