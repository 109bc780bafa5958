#include "manual/Description.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <map>
#include <sstream>

namespace quorvel::manual
{

namespace
{

/// The words of "LEVEL:{debug,info}". Empty if the type doesn't name them.
std::vector<std::string> wordsOf(const std::string& type)
{
    const auto begin = type.find('{');
    const auto end = type.find('}', begin);
    if (begin == std::string::npos || end == std::string::npos)
        return {};
    std::vector<std::string> words;
    std::istringstream list(type.substr(begin + 1, end - begin - 1));
    for (std::string word; std::getline(list, word, ',');)
        words.push_back(word);
    return words;
}

std::string valueOf(const std::string& type)
{
    return type.substr(0, type.find(':'));
}

Option describeOption(const CLI::Option& option)
{
    Option described;
    for (const std::string& name : option.get_snames())
        described.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames())
        described.names.push_back("--" + name);
    if (described.names.empty())
        described.names.push_back(option.get_name());
    described.text = option.get_description();
    if (option.get_items_expected_max() > 0) {
        described.value = valueOf(option.get_type_name());
        described.words = wordsOf(option.get_type_name());
        described.preset = option.get_default_str();
        described.repeated = option.get_items_expected_max() > 1;
    }
    described.environment = option.get_envname();
    described.required = option.get_required();
    return described;
}

std::vector<std::string> paragraphs(std::string text)
{
    std::vector<std::string> found;
    for (std::size_t end = 0; !text.empty(); text.erase(0, end)) {
        end = std::min(text.find("\n\n"), text.size());
        if (end > 0)
            found.push_back(text.substr(0, end));
        end = std::min(end + 2, text.size());
    }
    return found;
}

Command describeCommand(const CLI::App& app, const std::string& parent)
{
    Command described;
    described.name = parent + app.get_name();
    described.text = app.get_description();
    described.remarks = paragraphs(app.get_footer());
    // Every command has --help; once is enough.
    const CLI::Option* told = parent.empty() ? nullptr : app.get_help_ptr();
    for (const CLI::Option* option : app.get_options([](const CLI::Option*) { return true; }))
        if (option != told && !option->get_group().empty())
            (option->nonpositional() ? described.options : described.arguments)
                .push_back(describeOption(*option));
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
        if (!command->get_group().empty())
            described.commands.push_back(describeCommand(*command, described.name + ' '));
    return described;
}

void countRemarks(const Command& command, std::map<std::string, int>& counts)
{
    for (const std::string& remark : command.remarks)
        ++counts[remark];
    for (const Command& inner : command.commands)
        countRemarks(inner, counts);
}

/// A remark that stands below several commands is about --help itself.
void keepUniqueRemarks(Command& command, std::map<std::string, int>& counts)
{
    const auto repeated = [&counts](const std::string& remark) { return counts[remark] > 1; };
    command.remarks.erase(std::remove_if(command.remarks.begin(), command.remarks.end(), repeated),
                          command.remarks.end());
    for (Command& inner : command.commands)
        keepUniqueRemarks(inner, counts);
}

} // namespace

Command describe(const CLI::App& app)
{
    Command program = describeCommand(app, std::string());
    std::map<std::string, int> counts;
    countRemarks(program, counts);
    keepUniqueRemarks(program, counts);
    return program;
}

} // namespace quorvel::manual
