#pragma once

#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace quorvel::manual
{

/// An option, or an argument without a name of its own.
struct Option {
    /// As they are typed, "-a" and "--address"; of an argument what it is called.
    std::vector<std::string> names;
    std::string text;
    /// What its value is called. Empty if it takes none.
    std::string value;
    /// The values that it can have, if they can be told.
    std::vector<std::string> words;
    std::string environment;
    std::string preset;
    bool required = false;
    bool repeated = false;
};

/// A program, or a command of it.
struct Command {
    /// From the program on: "quorvelctl wan show".
    std::string name;
    std::string text;
    /// What --help tells below everything else and only here.
    std::vector<std::string> remarks;
    std::vector<Option> options;
    std::vector<Option> arguments;
    std::vector<Command> commands;
};

/// What the command line of a program can hold, hidden options and commands left out.
Command describe(const CLI::App& app);

} // namespace quorvel::manual
