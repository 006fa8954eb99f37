#include "api/RequestURL.h"

#include "api/APIError.h"
#include "model/records/URL.h"
#include "support/Utf8.h"

namespace larkspan::api {

namespace {

constexpr std::string_view unreserved = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
constexpr std::string_view allowedInPath = "!$&'()*+,;=:@/";
constexpr std::string_view allowedInQuery = "!$&'()*+,;=:@/?";

bool isIn(std::string_view set, char c)
{
    return set.find(c) != std::string_view::npos;
}

std::string escaped(std::string_view text, std::string_view allowed)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char c : text) {
        if (isIn(unreserved, c) || isIn(allowed, c)) {
            result += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            result += {'%', digits[byte >> 4], digits[byte & 0xF]};
        }
    }
    return result;
}

}  // namespace

std::string requestURL(std::string_view base, std::string_view path)
{
    if (path.starts_with('/')) path.remove_prefix(1);
    const std::string prefix = std::string(base) + '/';
    if (path.find('?') == std::string_view::npos) return prefix + escaped(path, allowedInPath);
    const auto url = model::URL::parse(prefix + std::string(path));
    if (!url) throw APIError::invalidURL();
    return url->text();
}

std::string queryEscaped(std::string_view value)
{
    return support::isValidUtf8(value) ? escaped(value, allowedInQuery) : std::string(value);
}

}  // namespace larkspan::api
