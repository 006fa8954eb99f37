#include "adapters/http/Redirect.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "adapters/http/CurlHandles.h"
#include "adapters/http/RequestOptions.h"

namespace larkspan::adapters {

namespace {

struct Origin {
    std::string scheme;
    std::string host;
    std::string port;

    bool operator==(const Origin&) const = default;
};

std::optional<std::string> part(CURLU* url, CURLUPart which, unsigned flags = 0)
{
    char* text = nullptr;
    if (curl_url_get(url, which, &text, flags) != CURLUE_OK) return std::nullopt;
    const CurlText owned(text);
    std::string lowered(text);
    std::ranges::transform(
        lowered, lowered.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lowered;
}

std::optional<Origin> originOf(const std::string& text)
{
    const UrlHandle url(curl_url());
    if (!url || curl_url_set(url.get(), CURLUPART_URL, text.c_str(), CURLU_DISALLOW_USER) != CURLUE_OK)
        return std::nullopt;
    auto scheme = part(url.get(), CURLUPART_SCHEME);
    auto host = part(url.get(), CURLUPART_HOST);
    auto port = part(url.get(), CURLUPART_PORT, CURLU_DEFAULT_PORT);
    if (!scheme || !host || !port) return std::nullopt;
    return Origin{std::move(*scheme), std::move(*host), std::move(*port)};
}

bool staysWithinOrigin(const std::string& from, const std::string& to)
{
    const auto origin = originOf(from);
    return origin && origin == originOf(to);
}

}  // namespace

std::optional<platform::HttpRequest> afterRedirect(
    const platform::HttpRequest& request, int status, const std::string& location)
{
    const bool isMovedAsItIs = status == 307 || status == 308;
    const bool isResultElsewhere = status == 303;
    const bool isMoved = status == 301 || status == 302;
    const bool isFollowed = isMovedAsItIs || isResultElsewhere || (isMoved && isRead(request));
    if (!isFollowed || !staysWithinOrigin(request.url, location)) return std::nullopt;

    auto next = request;
    next.url = location;
    if (isResultElsewhere && !isRead(request)) {
        next.method = "GET";
        next.body.reset();
        std::erase_if(next.headers, [](const auto& header) { return isNamed(header, "content-type"); });
    }
    return next;
}

}  // namespace larkspan::adapters
