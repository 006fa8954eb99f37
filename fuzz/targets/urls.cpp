// The addresses of requests: whatever an id is, a request stays with the service, and its path is what was meant.

#include <algorithm>
#include <optional>
#include <string>

#include "Target.h"
#include "api/APIError.h"
#include "api/RequestURL.h"
#include "model/records/URL.h"
#include "support/Utf8.h"

using namespace larkspan;
using fuzz::require;

namespace {

const std::string base = "https://service.example:8443/user/api";

bool isVisible(std::string_view text)
{
    return std::ranges::none_of(text, [](unsigned char byte) { return byte <= ' ' || byte == 0x7F; });
}

std::string unescaped(std::string_view text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            plain += text[at];
        } else {
            plain += static_cast<char>(std::stoi(std::string(text.substr(at + 1, 2)), nullptr, 16));
            at += 2;
        }
    }
    return plain;
}

bool isASCII(std::string_view text)
{
    return std::ranges::all_of(text, [](unsigned char byte) { return byte > ' ' && byte < 0x7F; });
}

void checkParsing(std::string_view text)
{
    const auto url = model::URL::parse(text);
    if (!url) return;
    require(url->text() == text, "a URL keeps its text");
    require(support::isValidUtf8(text) && isVisible(text), "a URL has visible characters only");
    require(
        text.find_first_of("\"<>\\^`{|}") == std::string_view::npos, "a URL has no character that ends it elsewhere");
    require(url->host().find_first_of("/?#@") == std::string_view::npos, "a host ends where it ends");
    require(url->host().empty() || text.find("//") != std::string_view::npos, "a host stands behind two slashes");
    const auto behind = text.find('#') == std::string_view::npos ? std::string(text) + "#end" : std::string(text);
    require(model::URL::parse(behind).has_value(), "a URL may have a fragment");
}

void checkRequest(std::string_view path)
{
    std::optional<std::string> made;
    try {
        made = api::requestURL(base, path);
    } catch (const api::APIError& error) {
        require(error.kind() == api::APIError::Case::invalidURL, "only an invalid URL is refused");
        require(path.find('?') != std::string_view::npos, "a path without a query is never refused");
        return;
    }
    const auto url = model::URL::parse(*made);
    require(url && url->host() == "service.example", "a request goes to the service");
    require(made->starts_with(base + '/') && isVisible(*made), "a request is below its base");
    const auto rest = path.starts_with('/') ? path.substr(1) : path;
    if (path.find('?') != std::string_view::npos) {
        require(made->substr(base.size() + 1) == rest, "a path with a query is appended as it is");
    } else {
        require(isASCII(*made), "a path is escaped");
        require(
            unescaped(std::string_view(*made).substr(base.size() + 1)) == rest, "an escaped path is what was meant");
    }
}

void checkQuery(std::string_view value)
{
    const auto escaped = api::queryEscaped(value);
    require(escaped.size() <= value.size() * 3, "escaping makes three bytes of one at most");
    if (!support::isValidUtf8(value)) {
        require(escaped == value, "what is no text is not changed");
        return;
    }
    require(isASCII(escaped) && unescaped(escaped) == value, "an escaped value is what was meant");
    require(model::URL::parse(base + "/monitors?ids=" + escaped).has_value(), "an escaped value stands in a query");
}

}  // namespace

FUZZ_TARGET(urls, input)
{
    checkParsing(input);
    checkRequest(input);
    checkQuery(input);
}
