#include "Form.h"

#include <algorithm>
#include <cctype>

namespace quorvel::simulator
{

namespace
{

std::string decoded(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escape = text[i] == '%' && i + 2 < text.size() &&
                            std::isxdigit(static_cast<unsigned char>(text[i + 1])) &&
                            std::isxdigit(static_cast<unsigned char>(text[i + 2]));
        if (escape) {
            result += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            result += text[i] == '+' ? ' ' : text[i];
        }
    }
    return result;
}

} // namespace

std::map<std::string, std::string> readForm(const std::string& body)
{
    std::map<std::string, std::string> form;
    for (std::size_t start = 0; start < body.size();) {
        const auto end = std::min(body.find('&', start), body.size());
        const std::string field = body.substr(start, end - start);
        const auto equals = std::min(field.find('='), field.size());
        form[decoded(field.substr(0, equals))] =
            equals < field.size() ? decoded(field.substr(equals + 1)) : std::string();
        start = end + 1;
    }
    return form;
}

std::string formValue(const std::map<std::string, std::string>& form, const std::string& field)
{
    const auto found = form.find(field);
    return found == form.end() ? std::string() : found->second;
}

} // namespace quorvel::simulator
