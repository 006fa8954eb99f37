#include "presentation/shapes/RowId.h"

#include <charconv>

namespace larkspan::presentation {

namespace {

// The service's ids do not contain this character, and it is never shown.
constexpr char separator = '\x1F';

}  // namespace

std::string RowIds::numbered(const std::string& id, std::size_t before)
{
    return before == 0 ? id : id + separator + std::to_string(before);
}

std::vector<std::size_t> RowIds::repeatedOf(std::vector<std::size_t> hashes)
{
    std::ranges::sort(hashes);
    std::vector<std::size_t> repeated;
    for (std::size_t at = 1; at < hashes.size(); ++at) {
        if (hashes[at] == hashes[at - 1]) repeated.push_back(hashes[at]);
    }
    return repeated;
}

RowId RowId::of(std::string_view text)
{
    const auto end = text.rfind(separator);
    if (end == std::string_view::npos) return {text};
    RowId row{text.substr(0, end)};
    const auto number = text.substr(end + 1);
    if (std::from_chars(number.data(), number.data() + number.size(), row.before).ec != std::errc{}) return {text};
    return row;
}

}  // namespace larkspan::presentation
