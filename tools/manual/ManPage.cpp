#include "manual/ManPage.h"

#include <algorithm>
#include <cctype>

namespace quorvel::manual
{

namespace
{

/// A text as roff takes it: no hyphen becomes a dash and no line a request.
std::string roff(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        if ((c == '.' || c == '\'') && (result.empty() || result.back() == '\n'))
            result += "\\&";
        if (c == '-')
            result += "\\-";
        else if (c == '\\')
            result += "\\e";
        else
            result += c;
    }
    return result;
}

std::string upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

std::string bold(const std::string& text)
{
    return "\\fB" + roff(text) + "\\fR";
}

std::string italic(const std::string& text)
{
    return "\\fI" + roff(text) + "\\fR";
}

std::string joined(const std::vector<std::string>& texts, const std::string& separator)
{
    std::string result;
    for (const std::string& text : texts)
        result += (result.empty() ? std::string() : separator) + text;
    return result;
}

/// What else there is to say about an option, as sentences.
std::string details(const Option& option)
{
    std::string result;
    const auto add = [&result](const std::string& sentence) { result += ". " + sentence; };
    if (!option.words.empty())
        add("One of " + roff(joined(option.words, ", ")));
    if (!option.preset.empty())
        add("Without it: " + roff(option.preset));
    if (!option.environment.empty())
        add("Also taken from the environment: " + bold(option.environment));
    if (option.required)
        add("Required");
    return result;
}

std::string entry(const Option& option, bool isArgument)
{
    std::string names;
    for (const std::string& name : option.names)
        names += (names.empty() ? "" : ", ") + (isArgument ? italic(name) : bold(name));
    if (!isArgument && !option.value.empty())
        names += ' ' + italic(option.value);
    if (option.repeated)
        names += " ...";
    return ".TP\n" + names + '\n' + roff(option.text) + details(option) + '\n';
}

std::string entries(const Command& command)
{
    std::string result;
    for (const Option& argument : command.arguments)
        result += entry(argument, true);
    for (const Option& option : command.options)
        result += entry(option, false);
    return result;
}

std::string synopsis(const Command& command)
{
    std::string result = bold(command.name) + " [\\fIOPTION\\fR]...";
    for (const Option& argument : command.arguments) {
        const std::string text = italic(argument.names.front());
        result += ' ' + (argument.required ? text : '[' + text + ']');
    }
    if (!command.commands.empty())
        result += " \\fICOMMAND\\fR";
    return result + '\n';
}

std::string remarks(const Command& command)
{
    std::string result;
    for (const std::string& text : command.remarks)
        result += ".PP\n" + roff(text) + '\n';
    return result;
}

/// What stands below everything else. A remark as "Exit status: ..." is headed by its first words.
std::string lastSections(const Command& program)
{
    std::string result;
    for (const std::string& text : program.remarks) {
        const auto colon = text.find(": ");
        const bool headed = colon != std::string::npos;
        result += ".SH " + upper(headed ? text.substr(0, colon) : "notes") + '\n' +
                  roff(headed ? text.substr(colon + 2) : text) + '\n';
    }
    return result;
}

/// Commands that only hold others have no section: what to type is what they hold.
std::string commandSections(const Command& parent)
{
    std::string result;
    for (const Command& command : parent.commands)
        if (command.commands.empty())
            result += ".SS " + roff(command.name) + '\n' + synopsis(command) + ".PP\n" +
                      roff(command.text) + '\n' + entries(command) + remarks(command);
        else
            result += commandSections(command);
    return result;
}

} // namespace

std::string manPage(const Command& program, const std::string& version)
{
    std::string page = ".TH " + upper(roff(program.name)) + " 1 \"\" \"" + roff(version) +
                       "\" \"User Commands\"\n";
    page += ".SH NAME\n" + roff(program.name) + " \\- " + roff(program.text) + '\n';
    page += ".SH SYNOPSIS\n" + synopsis(program);
    page += ".SH OPTIONS\n" + entries(program);
    if (!program.commands.empty())
        page += ".SH COMMANDS\n" + commandSections(program);
    page += lastSections(program);
    page.pop_back(); // who prints the page ends its last line
    return page;
}

} // namespace quorvel::manual
