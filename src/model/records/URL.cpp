#include "model/records/URL.h"

#include <algorithm>

#include "support/Utf8.h"

namespace larkspan::model {

namespace {

constexpr std::string_view subDelimiters = "!$&'()*+,;=";

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isHexDigit(char character)
{
    return isDigit(character) || (character >= 'a' && character <= 'f') || (character >= 'A' && character <= 'F');
}

bool isOneOf(std::string_view set, char character)
{
    return set.find(character) != std::string_view::npos;
}

bool isUnreserved(char character)
{
    return isLetter(character) || isDigit(character) || isOneOf("-._~", character)
        || static_cast<unsigned char>(character) >= 0x80;
}

/// Whether `part` consists of unreserved characters, sub-delimiters, percent escapes and the characters of `allowed`
/// only.
bool isMadeOf(std::string_view part, std::string_view allowed)
{
    for (std::size_t at = 0; at < part.size(); ++at) {
        if (part[at] == '%') {
            if (part.size() - at < 3 || !isHexDigit(part[at + 1]) || !isHexDigit(part[at + 2])) return false;
            at += 2;
        } else if (!isUnreserved(part[at]) && !isOneOf(subDelimiters, part[at]) && !isOneOf(allowed, part[at])) {
            return false;
        }
    }
    return true;
}

/// Cuts `rest` at the first `delimiter` and returns what follows it, if there is one.
std::optional<std::string_view> cutAfter(std::string_view& rest, char delimiter)
{
    const auto at = rest.find(delimiter);
    if (at == std::string_view::npos) return std::nullopt;
    const auto behind = rest.substr(at + 1);
    rest = rest.substr(0, at);
    return behind;
}

bool isScheme(std::string_view text)
{
    return !text.empty() && isLetter(text.front()) && std::all_of(text.begin(), text.end(), [](char character) {
        return isLetter(character) || isDigit(character) || isOneOf("+-.", character);
    });
}

bool isPort(std::string_view text)
{
    int port = 0;
    for (const char character : text) {
        if (!isDigit(character)) return false;
        port = port * 10 + (character - '0');
        if (port > 65'535) return false;
    }
    return true;
}

/// The host of `authority` (`user@host:port`), empty if one of the three is malformed.
std::optional<std::string_view> hostOf(std::string_view authority)
{
    auto host = authority;
    if (const auto behindUser = cutAfter(host, '@')) {
        if (!isMadeOf(host, ":")) return std::nullopt;
        host = *behindUser;
    }
    if (host.starts_with('[')) {
        host.remove_prefix(1);
        auto behind = cutAfter(host, ']');
        if (!behind || host.empty()) return std::nullopt;
        if (!std::all_of(host.begin(), host.end(), [](char c) { return isHexDigit(c) || isOneOf(":.", c); }))
            return std::nullopt;
        if (behind->empty()) return host;
        if (!behind->starts_with(':') || !isPort(behind->substr(1))) return std::nullopt;
        return host;
    }
    if (const auto port = cutAfter(host, ':'); port && !isPort(*port)) return std::nullopt;
    if (!isMadeOf(host, "")) return std::nullopt;
    return host;
}

}  // namespace

URL::URL(std::string_view text, std::string_view host)
    : text_(text)
    , hostBegin_(host.empty() ? 0 : static_cast<std::size_t>(host.data() - text.data()))
    , hostLength_(host.size())
{
}

std::optional<URL> URL::parse(std::string_view text)
{
    if (text.empty() || !support::isValidUtf8(text)) return std::nullopt;

    auto rest = text;
    if (const auto fragment = cutAfter(rest, '#'); fragment && !isMadeOf(*fragment, ":@/?")) return std::nullopt;
    if (const auto query = cutAfter(rest, '?'); query && !isMadeOf(*query, ":@/?")) return std::nullopt;

    // A colon in the first segment always ends a scheme, so a relative reference cannot have one there.
    auto firstSegment = rest.substr(0, rest.find('/'));
    if (cutAfter(firstSegment, ':')) {
        if (!isScheme(firstSegment)) return std::nullopt;
        rest.remove_prefix(firstSegment.size() + 1);
    }

    std::string_view host;
    if (rest.starts_with("//")) {
        rest.remove_prefix(2);
        const auto authority = rest.substr(0, rest.find('/'));
        const auto found = hostOf(authority);
        if (!found) return std::nullopt;
        host = *found;
        rest.remove_prefix(authority.size());
    }
    if (!isMadeOf(rest, ":@/")) return std::nullopt;
    return URL(text, host);
}

}  // namespace larkspan::model
