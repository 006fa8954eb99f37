// Redirects: the key stays with the service, and no write is repeated that the service has not moved.

#include <curl/curl.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include "Bytes.h"
#include "Target.h"
#include "adapters/http/Redirect.h"

using namespace larkspan;
using fuzz::require;
using platform::HttpRequest;

namespace {

constexpr std::array statuses{301, 302, 303, 307, 308, 300, 304, 305, 200, 404};
constexpr std::array methods{"GET", "HEAD", "POST", "PATCH", "PUT", "DELETE"};

HttpRequest requestOf(fuzz::Bytes& bytes)
{
    HttpRequest request{.method = methods[bytes.below(methods.size())],
        .url = "https://service.example:8443/user/api/v1/status-pages",
        .headers = {{"Authorization", "Bearer secret"}, {"X-API-Key", "secret"}},
        .body = std::nullopt};
    if (bytes.coin()) {
        request.headers.emplace_back("Content-Type", "application/json");
        request.body = R"({"title":"a"})";
    }
    return request;
}

/// What libcurl will connect to.
std::string partOf(const std::string& url, CURLUPart which)
{
    const std::unique_ptr<CURLU, void (*)(CURLU*)> parsed(curl_url(), curl_url_cleanup);
    char* text = nullptr;
    if (curl_url_set(parsed.get(), CURLUPART_URL, url.c_str(), 0) != CURLUE_OK) return {};
    if (curl_url_get(parsed.get(), which, &text, CURLU_DEFAULT_PORT) != CURLUE_OK) return {};
    std::string part(text);
    curl_free(text);
    std::ranges::transform(part, part.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return part;
}

void checkOrigin(const std::string& url)
{
    require(partOf(url, CURLUPART_SCHEME) == "https", "a redirect stays encrypted");
    require(partOf(url, CURLUPART_HOST) == "service.example", "the key stays with its host");
    require(partOf(url, CURLUPART_PORT) == "8443", "the key stays with its port");
    require(partOf(url, CURLUPART_USER).empty() && partOf(url, CURLUPART_PASSWORD).empty(), "a redirect names no user");
    const auto authority = url.substr(0, url.find_first_of("/?#", std::min(url.size(), url.find_first_not_of('/', 6))));
    require(authority.find('@') == std::string::npos, "a redirect names no user");
    require(std::ranges::none_of(url, [](unsigned char c) { return c < ' ' || c == 0x7F; }), "an address is one line");
}

void checkNext(const HttpRequest& request, int status, const std::string& location, const HttpRequest& next)
{
    require(next.url == location, "a redirect is followed to where it leads");
    checkOrigin(next.url);
    const bool isRead = request.method == "GET" || request.method == "HEAD";
    if (isRead || status == 307 || status == 308) {
        auto moved = request;
        moved.url = location;
        require(next == moved, "what is moved is sent as it is");
        return;
    }
    require(status == 303, "a write is not repeated");
    require(next.method == "GET" && !next.body, "the result of a write is only read");
    require(next.headers == std::vector(request.headers.begin(), request.headers.begin() + 2),
        "the key is sent, and no type");
}

}  // namespace

FUZZ_TARGET(redirect, input)
{
    fuzz::Bytes bytes(input);
    const int status = statuses[bytes.below(statuses.size())];
    const auto request = requestOf(bytes);
    // libcurl gives it as a C string.
    const std::string location = std::string(bytes.text()).c_str();
    const auto next = adapters::afterRedirect(request, status, location);
    const auto own = adapters::afterRedirect(request, status, request.url);
    if (next) {
        require(own.has_value(), "another place is not better than the same one");
        checkNext(request, status, location, *next);
    }
    require(!adapters::afterRedirect(request, status, "https://other.example:8443/" + location),
        "no other host gets the key");
    require(
        !adapters::afterRedirect(request, status, "https://service.example/" + location), "no other port gets the key");
    require(!adapters::afterRedirect(request, status, "http://service.example:8443/" + location),
        "the key is never sent in clear");
}
