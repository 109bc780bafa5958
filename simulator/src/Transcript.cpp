#include "quorvel-simulator/Exchange.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace quorvel::simulator
{

namespace
{

const char* const mask = "********";

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// Rather a value too many than one too few.
bool isSecret(const std::string& key)
{
    constexpr std::array words{"password", "passwd",  "psk",     "secret",    "token",
                               "session",  "wep_key", "wpa_key", "radius_key"};
    const std::string name = lower(key);
    return name == "pin" || name == "puk" ||
           std::any_of(words.begin(), words.end(),
                       [&name](const char* word) { return name.find(word) != std::string::npos; });
}

// Hides the text of each element that is called like a secret, and of each "value" that stands
// behind such a key. Looks at the text alone, so that it also serves for what isn't quite XML.
std::string maskedXml(const std::string& text)
{
    std::string result;
    std::string key;
    std::size_t start = 0;
    for (auto open = text.find('<'); open != std::string::npos; open = text.find('<', start)) {
        const auto close = text.find('>', open);
        if (close == std::string::npos)
            break;
        const std::string name = text.substr(open + 1, close - open - 1);
        const auto next = std::min(text.find('<', close), text.size());
        const std::string content = text.substr(close + 1, next - close - 1);
        if (name == "key")
            key = content;
        const bool secret =
            !content.empty() && isSecret(name == "value" ? key : name) && name.front() != '/';
        result += text.substr(start, close + 1 - start) + (secret ? mask : content);
        start = next;
    }
    return result + text.substr(start);
}

std::string maskedForm(const std::string& body)
{
    std::string result;
    for (std::size_t start = 0; start < body.size();) {
        const auto end = std::min(body.find('&', start), body.size());
        const std::string field = body.substr(start, end - start);
        const auto equals = field.find('=');
        const bool secret = equals != std::string::npos && isSecret(field.substr(0, equals));
        result +=
            (secret ? field.substr(0, equals + 1) + mask : field) + (end < body.size() ? "&" : "");
        start = end + 1;
    }
    return result;
}

std::string maskedCookie(const std::string& cookie)
{
    const auto value = cookie.find('=');
    return (value == std::string::npos ? " " : cookie.substr(0, value + 1)) + mask;
}

// What a client sends: any number of them in one line.
std::string maskedCookies(const std::string& cookies)
{
    std::string result;
    for (std::size_t start = 0; start < cookies.size();) {
        const auto end = std::min(cookies.find(';', start), cookies.size());
        result += maskedCookie(cookies.substr(start, end - start));
        result += end < cookies.size() ? ";" : "";
        start = end + 1;
    }
    return result;
}

std::string maskedHeader(const std::string& line)
{
    const std::string name = lower(line.substr(0, line.find(':')));
    const std::string label = line.substr(0, name.size() + 1);
    const std::string value = line.substr(label.size());
    if (name == "authorization" || name == "proxy-authorization")
        return label + " " + mask;
    if (name == "cookie")
        return label + maskedCookies(value);
    if (name != "set-cookie")
        return line;
    const auto attributes = std::min(value.find(';'), value.size());
    return label + maskedCookie(value.substr(0, attributes)) + value.substr(attributes);
}

std::string maskedHead(const std::string& head)
{
    std::string result;
    for (std::size_t start = 0; start < head.size();) {
        const auto end = std::min(head.find("\r\n", start), head.size());
        result += maskedHeader(head.substr(start, end - start)) + "\n";
        start = end + 2;
    }
    return result;
}

// What a text file can't show is shown as its number.
std::string readable(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 || c == '\n' || c == '\t')
            result += c;
        else
            result +=
                std::string("\\x") + "0123456789abcdef"[byte >> 4] + "0123456789abcdef"[byte & 15];
    }
    return result;
}

std::string block(const std::string& text)
{
    return text.empty() || text.back() == '\n' ? text : text + "\n";
}

std::string toText(const Exchange& exchange, std::size_t number)
{
    const bool form = exchange.requestBody.find('<') == std::string::npos;
    std::string text = "==== " + std::to_string(number) + ": " + exchange.method + " " +
                       exchange.path + "\n" + maskedHead(exchange.requestHead) + "\n";
    text +=
        block(readable(form ? maskedForm(exchange.requestBody) : maskedXml(exchange.requestBody)));
    text +=
        "---- reply" + (exchange.fault.empty() ? "" : " (fault: " + exchange.fault + ")") + "\n";
    return text + maskedHead(exchange.replyHead) + "\n" +
           block(readable(maskedXml(exchange.replyBody)));
}

} // namespace

std::string toTranscript(const std::vector<Exchange>& exchanges)
{
    std::string text;
    for (std::size_t i = 0; i < exchanges.size(); ++i)
        text += toText(exchanges[i], i + 1) + "\n";
    return text;
}

} // namespace quorvel::simulator
