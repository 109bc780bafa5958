#include "quorvel-simulator/Fault.h"

#include "FaultPlan.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <map>

namespace quorvel::simulator
{

namespace
{

struct KindRow {
    FaultKind kind;
    const char* name;
    int argument;
    int lowest;
    int highest;
};

constexpr std::array kinds{
    KindRow{FaultKind::Refuse, "refuse", 0, 0, 0},
    KindRow{FaultKind::Close, "close", 0, 0, 0},
    KindRow{FaultKind::Reset, "reset", 0, 0, INT_MAX},
    KindRow{FaultKind::Hang, "hang", 0, 0, 0},
    KindRow{FaultKind::Delay, "delay", 1000, 1, 3600000},
    KindRow{FaultKind::Drip, "drip", 100, 1, 60000},
    KindRow{FaultKind::Truncate, "truncate", 0, 0, 0},
    KindRow{FaultKind::WrongLength, "wrong-length", 100, INT_MIN, INT_MAX},
    KindRow{FaultKind::Garbage, "garbage", 5000, 1, 64 * 1024 * 1024},
    KindRow{FaultKind::Html, "html", 0, 0, 0},
    KindRow{FaultKind::Empty, "empty", 0, 0, 0},
    KindRow{FaultKind::HttpStatus, "http", 500, 200, 599},
    KindRow{FaultKind::InvalidUtf8, "bad-utf8", 0, 0, 0},
    KindRow{FaultKind::ErrorCode, "error", 11, INT_MIN, INT_MAX},
    KindRow{FaultKind::SessionExpired, "session-expired", 0, 0, INT_MAX},
    KindRow{FaultKind::Oversized, "oversized", 5 * 1024 * 1024, 1, 64 * 1024 * 1024},
    KindRow{FaultKind::TooDeep, "too-deep", 257, 2, 1000000},
    KindRow{FaultKind::CommandFails, "command-fails", 1, 1, INT_MAX},
    KindRow{FaultKind::PowerCut, "power-cut", 1, 1, INT_MAX},
    KindRow{FaultKind::RadioRestart, "radio-restart", 0, 0, 3600000},
};

const KindRow& rowOf(FaultKind kind)
{
    return *std::find_if(kinds.begin(), kinds.end(),
                         [kind](const KindRow& row) { return row.kind == kind; });
}

bool readNumber(const std::string& text, int lowest, int highest, int& number)
{
    char* end = nullptr;
    const long long value = std::strtoll(text.c_str(), &end, 10);
    const bool starts =
        !text.empty() && (std::isdigit(static_cast<unsigned char>(text[0])) || text[0] == '-');
    if (!starts || *end != '\0' || value < lowest || value > highest)
        return false;
    number = static_cast<int>(value);
    return true;
}

// `hang` or `drip:50`.
std::string readKind(const std::string& word, Fault& fault)
{
    const auto colon = word.find(':');
    const std::string name = word.substr(0, colon);
    const auto row = std::find_if(kinds.begin(), kinds.end(),
                                  [&name](const KindRow& known) { return known.name == name; });
    if (row == kinds.end())
        return "no fault is called '" + name + "'";
    fault.kind = row->kind;
    if (colon == std::string::npos)
        return {};
    int argument = 0;
    if (!readNumber(word.substr(colon + 1), row->lowest, row->highest, argument))
        return "'" + name + "' takes no argument '" + word.substr(colon + 1) + "'";
    fault.argument = argument;
    return {};
}

bool readTarget(const std::string& value, Fault& fault)
{
    static const std::map<std::string, FaultTarget> targets{{"any", FaultTarget::Any},
                                                            {"login", FaultTarget::Login},
                                                            {"webapp", FaultTarget::WebApp},
                                                            {"probe", FaultTarget::Probe}};
    const auto found = targets.find(value);
    if (found != targets.end())
        fault.target = found->second;
    return found != targets.end();
}

// A bare number, or one of the options with an equals sign.
bool readOption(const std::string& word, Fault& fault)
{
    const auto equals = word.find('=');
    const std::string option = equals == std::string::npos ? "times" : word.substr(0, equals);
    const std::string value = equals == std::string::npos ? word : word.substr(equals + 1);
    if (option == "times")
        return readNumber(value, 0, INT_MAX, fault.times);
    if (option == "after")
        return readNumber(value, 0, INT_MAX, fault.after);
    if (option == "on")
        return readTarget(value, fault);
    if (option == "key" && !value.empty()) {
        fault.key = value;
        return true;
    }
    fault.takesEffect = value == "yes";
    return option == "effect" && (value == "yes" || value == "no");
}

std::vector<std::string> words(const std::string& text)
{
    std::vector<std::string> result;
    for (std::size_t start = text.find_first_not_of(" ,"); start != std::string::npos;) {
        const auto end = text.find_first_of(" ,", start);
        result.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(" ,", end);
    }
    return result;
}

} // namespace

std::optional<Fault> Fault::fromText(const std::string& text, std::string* error)
{
    const auto parts = words(text);
    Fault fault{FaultKind::Hang};
    std::string problem = parts.empty() ? "no fault is named" : readKind(parts[0], fault);
    for (std::size_t i = 1; i < parts.size() && problem.empty(); ++i) {
        if (!readOption(parts[i], fault))
            problem = "'" + parts[i] + "' is no option of a fault";
    }
    if (problem.empty())
        return fault;
    if (error)
        *error = problem;
    return std::nullopt;
}

std::string Fault::name(FaultKind kind)
{
    return rowOf(kind).name;
}

std::vector<std::string> Fault::names()
{
    std::vector<std::string> result;
    for (const KindRow& row : kinds)
        result.emplace_back(row.name);
    return result;
}

int argumentOf(const Fault& fault)
{
    return fault.argument.value_or(rowOf(fault.kind).argument);
}

} // namespace quorvel::simulator
