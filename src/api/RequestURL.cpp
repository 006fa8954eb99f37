#include "api/RequestURL.h"

#include "api/APIError.h"
#include "model/URL.h"

namespace larkspan::api {

namespace {

constexpr std::string_view unreserved = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
constexpr std::string_view allowedInPath = "!$&'()*+,;=:@/";
bool isIn(std::string_view set, char c)
{
    return set.find(c) != std::string_view::npos;
}

std::string escapedPath(std::string_view path)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string escaped;
    for (const char c : path) {
        if (isIn(unreserved, c) || isIn(allowedInPath, c)) {
            escaped += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            escaped += {'%', digits[byte >> 4], digits[byte & 0xF]};
        }
    }
    return escaped;
}

}  // namespace

std::string requestURL(std::string_view base, std::string_view path)
{
    if (path.starts_with('/')) path.remove_prefix(1);
    const std::string prefix = std::string(base) + '/';
    if (path.find('?') == std::string_view::npos) return prefix + escapedPath(path);
    const auto url = model::URL::parse(prefix + std::string(path));
    if (!url) throw APIError::invalidURL();
    return url->text();
}

}  // namespace larkspan::api
