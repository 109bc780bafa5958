#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI
{
class App;
class Option;
} // namespace CLI

/// What a program's command line can hold, and reading it. The parser stays out of sight: it is all
/// in headers, and each source that includes them takes seconds longer to compile.
namespace commandline
{

/// An option or an argument of a command: a handle, copied freely. Each call gives it back for the
/// next one.
class Option
{
public:
    explicit Option(CLI::Option& option) : option(&option) {}

    Option required();
    Option excludes(Option other);
    /// What --help calls its value.
    Option valueName(const std::string& name);
    /// Shows in --help the value that it has now.
    Option showDefault();
    /// Also takes its value from this environment variable.
    Option environment(const std::string& variable);
    /// Takes one value each time that it is named, and not all that follow.
    Option oneAtATime();
    /// Takes several values with this between them, too.
    Option separator(char separator);
    /// Takes its value where it stands, before what follows is read.
    Option inPlace();
    /// Keeps it out of --help and manual.
    Option hidden();

    /// @name Which values it takes
    /// @{
    Option oneOf(std::vector<std::string> words);
    Option between(int min, int max);
    Option positive();
    Option notNegative();
    /// `complaint` tells what is wrong with a value, and gives an empty text if nothing is. `form`
    /// is what --help tells of right ones.
    Option check(std::function<std::string(const std::string& value)> complaint,
                 const std::string& form = std::string());
    /// The same, and `complaint` may rewrite the value.
    Option rewrite(std::function<std::string(std::string& value)> complaint);
    /// @}

private:
    CLI::Option* option;
};

/// A command of a program, or the program itself: a handle, copied freely.
class Command
{
public:
    explicit Command(CLI::App& app) : app(&app) {}

    /// A command below this one.
    Command addCommand(const std::string& name, const std::string& meaning);

    /// @name An option, or an argument if the name has no dashes
    /// Its value goes to a variable, which must live as long as the command line, or to `take`.
    /// @{
    Option addOption(const std::string& name, std::string& value, const std::string& meaning);
    Option addOption(const std::string& name, int& value, const std::string& meaning);
    Option addOption(const std::string& name, std::vector<std::string>& values,
                     const std::string& meaning);
    Option addOption(const std::string& name, std::optional<std::string>& value,
                     const std::string& meaning);
    Option addOption(const std::string& name, std::optional<int>& value,
                     const std::string& meaning);
    Option addOption(const std::string& name, std::optional<bool>& value,
                     const std::string& meaning);
    Option addOption(const std::string& name, std::function<void(const std::string& value)> take,
                     const std::string& meaning);
    Option addFlag(const std::string& name, bool& value, const std::string& meaning);
    Option addFlag(const std::string& name, std::function<void()> take, const std::string& meaning);
    /// @}

    /// Calls this once a command line is read that names the command.
    void callback(std::function<void()> run);
    /// Tells this in its --help, above the program's footer.
    void addRemark(const std::string& text);

private:
    CLI::App* app;
};

/// A command line that can't be understood, and why.
struct Misuse {
    std::string message;
};

/// Thrown by an option to print a text in place of running anything, as --version does.
struct Answer {
    std::string text;
};

/// The command line of a program.
class CommandLine
{
public:
    /// `meaning` tells what the program does.
    explicit CommandLine(const std::string& program = std::string(),
                         const std::string& meaning = std::string());
    ~CommandLine();
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    Command program() { return Command(*app); }
    const CLI::App& parser() const { return *app; }

    /// Adds --version.
    void setVersion(const std::string& version);
    /// What --help tells below everything else; also for the commands that are added afterwards.
    void setFooter(const std::string& text);
    /// Lets the program's options stand behind commands as well that are added afterwards.
    void takeOptionsAnywhere();
    /// Lets commands that have been added be left out: only lacksCommand() tells then. An unknown
    /// command is complained of by its name.
    void letCommandsLack();
    /// Calls this when a command line is read, before its command runs.
    void whenRead(std::function<void()> call);

    /// Reads a command line and runs its command. Returns false if it asks for help, the version or
    /// the like, which is then printed. Throws Misuse, and what a command throws.
    bool run(int argc, char** argv);
    /// The same for a line without the program's name, which only runs a command.
    void run(const std::string& line);

    /// What --version prints.
    std::string version() const;
    /// The command that was given as far as it was understood, the program's name first.
    std::string given() const;
    /// Whether what was given is but a group of commands.
    bool lacksCommand() const;

private:
    std::unique_ptr<CLI::App> app;
};

} // namespace commandline
