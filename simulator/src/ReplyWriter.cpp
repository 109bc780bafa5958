#include "WebApp.h"

#include <algorithm>
#include <cctype>

namespace quorvel::simulator
{

namespace
{

bool isNameCharacter(unsigned char c)
{
    return std::isalnum(c) || c == '_' || c == '-' || c == '.' || c >= 0x80;
}

bool isElementName(const std::string& name)
{
    const auto first = static_cast<unsigned char>(name.empty() ? '-' : name.front());
    return (std::isalpha(first) || first == '_' || first >= 0x80) &&
           std::all_of(name.begin(), name.end(), isNameCharacter);
}

std::string element(const std::string& name, const std::string& content)
{
    return "<" + name + ">" + content + "</" + name + ">";
}

std::string pair(const Entry& entry)
{
    return element(entry.instance,
                   element("key", escaped(entry.key)) + element("value", escaped(entry.value))) +
           "\n";
}

std::string inLeafForm(const std::vector<Entry>& entries)
{
    std::vector<std::pair<std::string, std::string>> objects;
    std::string pairs;
    for (const Entry& entry : entries) {
        if (entry.repeats)
            pairs += pair(entry);
        if (entry.repeats || !isElementName(entry.key))
            continue;
        auto object = std::find_if(objects.begin(), objects.end(), [&entry](const auto& known) {
            return known.first == entry.instance;
        });
        if (object == objects.end())
            object = objects.insert(object, {entry.instance, {}});
        object->second += element(entry.key, escaped(entry.value));
    }
    std::string text;
    for (const auto& [instance, content] : objects)
        text += element(instance, content) + "\n";
    return text + pairs;
}

std::string inPairForm(const std::vector<Entry>& entries)
{
    std::string text;
    for (const Entry& entry : entries)
        text += pair(entry);
    return text;
}

} // namespace

std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '\r':
            result += "&#13;";
            break;
        default:
            if (static_cast<unsigned char>(c) >= 0x20 || c == '\t' || c == '\n')
                result += c;
        }
    }
    return result;
}

std::string writeReply(const std::string& dialect, const std::vector<Entry>& entries,
                       ErrorCode error)
{
    return "<response version=\"" + dialect + "\">\n" +
           (dialect == "1.0.0" ? inLeafForm(entries) : inPairForm(entries)) +
           element("webapp", element("error", std::to_string(static_cast<int>(error)))) +
           "\n</response>\n";
}

} // namespace quorvel::simulator
