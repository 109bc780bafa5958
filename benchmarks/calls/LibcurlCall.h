#pragma once

#include <map>
#include <string>

namespace quorvel::bench
{

/// Posts a request with a fresh libcurl handle and flattens the reply with pugixml, names as the
/// library gives them. Throws nothing; ends the program if the exchange fails.
std::map<std::string, std::string> askWithLibcurl(const std::string& url,
                                                  const std::string& request);

} // namespace quorvel::bench
