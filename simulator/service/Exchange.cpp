#include "service/Exchange.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace larkspan::simulator {

namespace {

bool equalIgnoringCase(std::string_view one, std::string_view other)
{
    return std::ranges::equal(
        one, other, [](unsigned char left, unsigned char right) { return std::tolower(left) == std::tolower(right); });
}

std::string decoded(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        unsigned byte = 0;
        const auto* const digits = text.data() + 1;
        if (text.size() > 2 && text.front() == '%' && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            plain += static_cast<char>(byte);
            text.remove_prefix(3);
        } else {
            plain += text.front();
            text.remove_prefix(1);
        }
    }
    return plain;
}

}  // namespace

std::optional<std::string_view> Request::header(std::string_view name) const
{
    for (const auto& [key, value] : headers) {
        if (equalIgnoringCase(key, name)) return value;
    }
    return std::nullopt;
}

std::string_view Request::path() const
{
    return std::string_view(target).substr(0, target.find('?'));
}

std::optional<std::string> Request::query(std::string_view name) const
{
    auto rest = std::string_view(target).substr(path().size());
    while (!rest.empty()) {
        rest.remove_prefix(1);
        const auto pair = rest.substr(0, rest.find('&'));
        const auto equals = std::min(pair.find('='), pair.size());
        if (pair.substr(0, equals) == name) return decoded(pair.substr(std::min(equals + 1, pair.size())));
        rest.remove_prefix(pair.size());
    }
    return std::nullopt;
}

std::vector<std::string> Request::queryList(std::string_view name) const
{
    std::vector<std::string> items;
    const auto value = query(name).value_or("");
    for (std::string_view rest = value; !rest.empty();) {
        const auto item = rest.substr(0, rest.find(','));
        if (!item.empty()) items.emplace_back(item);
        rest.remove_prefix(std::min(item.size() + 1, rest.size()));
    }
    return items;
}

}  // namespace larkspan::simulator
