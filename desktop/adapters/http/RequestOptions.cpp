#include "adapters/http/RequestOptions.h"

#include <algorithm>
#include <cctype>

namespace larkspan::adapters {

namespace {

bool isTokenCharacter(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return std::isalnum(byte) != 0 || std::string_view("!#$%&'*+-.^_`|~").find(character) != std::string_view::npos;
}

bool isToken(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, isTokenCharacter);
}

bool staysOnItsLine(std::string_view value)
{
    return value.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

void append(HeaderList& list, const std::string& line)
{
    auto* grown = curl_slist_append(list.get(), line.c_str());
    if (!grown) support::fatalError("out of memory");
    if (!list) list.reset(grown);  // A longer list begins where it began.
}

HeaderList headerLines(const platform::HttpRequest& request)
{
    HeaderList lines;
    for (const auto& [name, value] : request.headers) append(lines, value.empty() ? name + ";" : name + ": " + value);

    // Headers that libcurl would add by itself; a name without a value removes the header.
    for (const std::string_view unwanted : {"Accept", "Content-Type", "Expect", "User-Agent"}) {
        const auto isGiven = [unwanted](const auto& header) { return isNamed(header, unwanted); };
        if (std::ranges::none_of(request.headers, isGiven)) append(lines, std::string(unwanted) + ":");
    }
    return lines;
}

}  // namespace

bool isRead(const platform::HttpRequest& request)
{
    return request.method == "GET" || request.method == "HEAD";
}

bool isNamed(const std::pair<std::string, std::string>& header, std::string_view name)
{
    const auto lower = [](unsigned char character) { return std::tolower(character); };
    return std::ranges::equal(header.first, name, {}, lower, lower);
}

bool canBeSent(const platform::HttpRequest& request)
{
    return isToken(request.method) && request.url.starts_with("https://")
        && std::ranges::all_of(
            request.headers, [](const auto& header) { return isToken(header.first) && staysOnItsLine(header.second); });
}

HeaderList setRequest(CURL* transfer, const platform::HttpRequest& request)
{
    setOption(transfer, CURLOPT_URL, request.url.c_str());
    setOption(transfer, CURLOPT_PATH_AS_IS, 1L);
    // Addresses are looked up for each request, so that "Retry" does not use one that no longer answers.
    setOption(transfer, CURLOPT_DNS_CACHE_TIMEOUT, 0L);
    setOption(transfer, CURLOPT_PROTOCOLS_STR, "https");
    setOption(transfer, CURLOPT_DISALLOW_USERNAME_IN_URL, 1L);
    // One exchange per connection at a time: a write shares its connection with nothing, a hanging answer delays no
    // other, and the protocol has no frame that asks for a request to be sent again.
    setOption(transfer, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    setOption(transfer, CURLOPT_ACCEPT_ENCODING, "");

    if (request.method == "HEAD") setOption(transfer, CURLOPT_NOBODY, 1L);
    const bool carriesLength = request.body || (!isRead(request) && request.method != "DELETE");
    if (carriesLength) {
        const auto& body = request.body;
        setOption(transfer, CURLOPT_POST, 1L);
        setOption(transfer, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body ? body->size() : 0));
        setOption(transfer, CURLOPT_POSTFIELDS, body ? body->c_str() : "");
    }
    setOption(transfer, CURLOPT_CUSTOMREQUEST, request.method.c_str());

    if (!isRead(request)) {
        // An open connection may be about to close, and libcurl then sends the request again on another one. That is
        // right for reads only.
        setOption(transfer, CURLOPT_FRESH_CONNECT, 1L);
        // Answers to writes have no content more often than others, and what comes late as one all the same would be
        // taken for the next read's answer.
        setOption(transfer, CURLOPT_FORBID_REUSE, 1L);
    }

    auto lines = headerLines(request);
    setOption(transfer, CURLOPT_HTTPHEADER, lines.get());
    return lines;
}

}  // namespace larkspan::adapters
