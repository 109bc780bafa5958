#include "calls/LibcurlCall.h"

#include <cstdlib>
#include <curl/curl.h>
#include <pugixml.hpp>

namespace quorvel::bench
{

namespace
{

std::size_t collect(char* data, std::size_t size, std::size_t count, void* text)
{
    static_cast<std::string*>(text)->append(data, size * count);
    return size * count;
}

std::string post(const std::string& url, const std::string& request)
{
    std::string reply;
    CURL* const handle = curl_easy_init();
    curl_slist* const headers =
        curl_slist_append(nullptr, "Content-Type: application/x-www-form-urlencoded");
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(handle, CURLOPT_COOKIE, "SID=1");
    curl_easy_setopt(handle, CURLOPT_POSTFIELDS, request.c_str());
    curl_easy_setopt(handle, CURLOPT_PROXY, "");
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, 20000L);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &collect);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &reply);
    if (curl_easy_perform(handle) != CURLE_OK)
        std::abort();
    curl_slist_free_all(headers);
    curl_easy_cleanup(handle);
    return reply;
}

} // namespace

std::map<std::string, std::string> askWithLibcurl(const std::string& url,
                                                  const std::string& request)
{
    const std::string reply = post(url, request);
    pugi::xml_document document;
    if (!document.load_buffer(reply.data(), reply.size()))
        std::abort();
    std::map<std::string, std::string> entries;
    for (const pugi::xml_node object : document.document_element().children()) {
        for (const pugi::xml_node entry : object.children())
            entries[std::string(object.name()) + '.' + entry.name()] = entry.child_value();
    }
    return entries;
}

} // namespace quorvel::bench
