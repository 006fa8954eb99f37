#include "messages/markdown/MarkdownLink.h"

#include <algorithm>

#include "messages/markdown/DomainName.h"
#include "model/records/URL.h"
#include "support/IgnoringCase.h"

namespace larkspan::messages {

namespace {

constexpr std::size_t longestDestination = 2'000;
constexpr std::size_t longestHost = 253;

bool isControl(char byte)
{
    return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F';
}

/// `rest`, the part of a URL after its host, with characters escaped that people write but URLs do not allow.
std::string escaped(std::string_view rest)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view unusual = " \"<>[\\]^`{|}";
    std::string text;
    for (const char byte : rest) {
        if (unusual.find(byte) == std::string_view::npos) {
            text += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            text += {'%', digits[value >> 4], digits[value & 0xFu]};
        }
    }
    return text;
}

std::optional<MarkdownLink> webLink(std::string_view scheme, std::string_view rest)
{
    if (!rest.starts_with("//")) return std::nullopt;
    const auto end = std::min(rest.find_first_of("/?#", 2), rest.size());
    const auto authority = rest.substr(0, end);
    if (authority.find_first_of("@%") != std::string_view::npos) return std::nullopt;

    const auto url = model::URL::parse(std::string(scheme) + ':' + std::string(authority) + escaped(rest.substr(end)));
    if (!url || url->host().empty() || url->host().size() > longestHost) return std::nullopt;
    return MarkdownLink{url->text(), asciiDomainName(url->host())};
}

std::optional<MarkdownLink> mailLink(std::string_view scheme, std::string_view rest)
{
    const auto address = rest.substr(0, rest.find('?'));
    const auto at = address.find('@');
    const bool isOneAddress = at != std::string_view::npos && at > 0 && at + 1 < address.size()
        && address.find('@', at + 1) == std::string_view::npos;
    const bool isPlain = std::ranges::all_of(address, [](char byte) {
        return byte > ' ' && byte <= '~' && std::string_view("\"%,;<>\\").find(byte) == std::string_view::npos;
    });
    if (!isOneAddress || !isPlain) return std::nullopt;
    return MarkdownLink{std::string(scheme) + ':' + std::string(address), std::string(address)};
}

}  // namespace

std::optional<MarkdownLink> MarkdownLink::parse(std::string_view destination)
{
    if (destination.size() > longestDestination || std::ranges::any_of(destination, isControl)) return std::nullopt;
    const auto colon = destination.find(':');
    if (colon == std::string_view::npos) return std::nullopt;
    const auto scheme = destination.substr(0, colon);
    const auto rest = destination.substr(colon + 1);
    if (support::equalsIgnoringCase(scheme, "mailto")) return mailLink("mailto", rest);
    if (support::equalsIgnoringCase(scheme, "http")) return webLink("http", rest);
    if (support::equalsIgnoringCase(scheme, "https")) return webLink("https", rest);
    return std::nullopt;
}

}  // namespace larkspan::messages
