#include "manual/Completion.h"

#include <algorithm>

namespace quorvel::manual
{

namespace
{

// What both shells share: PROGRAM_find goes through the words before the one to complete and leaves
// in `found` what may stand there; `files` is set if a file may. The tables are cases of `place`,
// the command so far. "path" and "words" are avoided, for they mean something to zsh.
const char finder[] = R"(
FUNCTION_find() {
    local word value place='PROGRAM' skip='' inner
    found='' files=''
    for word do
        # Bash cuts --option=value into three words.
        [ "$word" != = ] || continue
        if [ -n "$skip" ]; then
            skip=''
        elif [ "${word#-}" != "$word" ]; then
            FUNCTION_takes "$place" "$word" && skip=$word
        elif FUNCTION_offers "$place $word"; then
            place="$place $word"
        fi
    done
    if [ -n "$skip" ]; then
        FUNCTION_takes "$place" "$skip"
        found=$value
        [ "$value" != FILE ] || found='' files=1
        return
    fi
    FUNCTION_offers "$place"
    found=$inner
    # Options of a command's parents may stand behind it as well.
    while [ "$place" != "${place% *}" ]; do
        place=${place% *}
        FUNCTION_offers "$place"
        for word in $(printf '%s' "$inner"); do
            [ "${word#-}" = "$word" ] || found="$found $word"
        done
    done
}
)";

const char bashEnd[] = R"(
FUNCTION() {
    local found files current=${COMP_WORDS[COMP_CWORD]} IFS=$' \t\n'
    [ "$current" != = ] || current=
    FUNCTION_find "${COMP_WORDS[@]:1:COMP_CWORD-1}"
    if [ -n "$files" ]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$found" -- "$current")
    fi
}
complete -F FUNCTION PROGRAM
)";

const char zshEnd[] = R"(
FUNCTION() {
    local found files
    FUNCTION_find "${(@)words[2,CURRENT-1]}"
    if [ -n "$files" ]; then
        _files
    else
        compadd -- ${=found}
    fi
}
FUNCTION "$@"
)";

void replaceAll(std::string& text, const std::string& old, const std::string& by)
{
    for (auto at = text.find(old); at != std::string::npos; at = text.find(old, at + by.size()))
        text.replace(at, old.size(), by);
}

/// Fills a template in for a program.
std::string filled(std::string text, const Command& program)
{
    std::string function = "_" + program.name;
    std::replace(function.begin(), function.end(), '-', '_');
    replaceAll(text, "FUNCTION", function);
    replaceAll(text, "PROGRAM", program.name);
    return text;
}

/// The last word of a command's name.
std::string ownName(const Command& command)
{
    return command.name.substr(command.name.rfind(' ') + 1);
}

/// A row per command: what may be typed behind it, values of arguments among it.
std::string offers(const Command& command)
{
    std::string row;
    const auto add = [&row](const std::string& word) { row += (row.empty() ? "" : " ") + word; };
    for (const Command& inner : command.commands)
        add(ownName(inner));
    for (const Option& argument : command.arguments)
        for (const std::string& word : argument.words)
            add(word);
    for (const Option& option : command.options)
        for (const std::string& name : option.names)
            add(name);
    std::string rows = "    '" + command.name + "') inner='" + row + "' ;;\n";
    for (const Command& inner : command.commands)
        rows += offers(inner);
    return rows;
}

/// A row per option that takes a value: the values, or FILE.
std::string takers(const Command& command)
{
    std::string rows;
    for (const Option& option : command.options) {
        if (option.value.empty())
            continue;
        std::string values = option.value == "FILE" ? option.value : std::string();
        for (const std::string& word : option.words)
            values += (values.empty() ? "" : " ") + word;
        std::string cases;
        for (const std::string& name : option.names)
            cases += (cases.empty() ? "'" : " | '") + command.name + ' ' + name + '\'';
        rows += "        " + cases + ") value='" + values + "'; return 0 ;;\n";
    }
    for (const Command& inner : command.commands)
        rows += takers(inner);
    return rows;
}

std::string tables(const Command& program)
{
    return filled("\nFUNCTION_offers() {\n    inner=''\n    case $1 in\n", program) +
           offers(program) + "    *) return 1 ;;\n    esac\n}\n" +
           filled("\n# An option may be one of the command or of its parents.\n"
                  "FUNCTION_takes() {\n    local place=$1\n    value=''\n    while :; do\n"
                  "        case \"$place $2\" in\n",
                  program) +
           takers(program) +
           "        esac\n        [ \"$place\" != \"${place% *}\" ] || return 1\n"
           "        place=${place% *}\n    done\n}\n";
}

} // namespace

std::string bashCompletion(const Command& program)
{
    std::string text =
        filled("# Completion of PROGRAM for bash, written by the program itself.\n", program) +
        tables(program) + filled(finder, program) + filled(bashEnd, program);
    text.pop_back();
    return text;
}

std::string zshCompletion(const Command& program)
{
    std::string text =
        filled(
            "#compdef PROGRAM\n# Completion of PROGRAM for zsh, written by the program itself.\n",
            program) +
        tables(program) + filled(finder, program) + filled(zshEnd, program);
    text.pop_back();
    return text;
}

} // namespace quorvel::manual
