#include "service/Exchange.h"

#include <algorithm>
#include <cctype>

namespace larkspan::simulator {

namespace {

bool equalIgnoringCase(std::string_view one, std::string_view other)
{
    return std::ranges::equal(
        one, other, [](unsigned char left, unsigned char right) { return std::tolower(left) == std::tolower(right); });
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

}  // namespace larkspan::simulator
