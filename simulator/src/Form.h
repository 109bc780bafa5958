#pragma once

#include <map>
#include <string>

namespace quorvel::simulator
{

/// The fields of a form body, decoded. A field that comes twice keeps its last value.
std::map<std::string, std::string> readForm(const std::string& body);

std::string formValue(const std::map<std::string, std::string>& form, const std::string& field);

} // namespace quorvel::simulator
