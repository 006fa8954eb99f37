#include "model/json/NumbersOutOfRange.h"

#include <simdjson.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <span>

namespace larkspan::model {

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view mark = "-9e99";

struct Number {
    bool isNumber = false;
    bool isInteger = false;
};

/// Whether the whole of `token` is a number in JSON's grammar.
Number grammarOf(std::string_view token)
{
    const auto skipDigits = [&token] {
        const auto count = std::min(token.find_first_not_of(digits), token.size());
        token.remove_prefix(count);
        return count;
    };
    const auto skip = [&token](std::string_view characters) {
        const bool isThere = !token.empty() && characters.find(token.front()) != std::string_view::npos;
        if (isThere) token.remove_prefix(1);
        return isThere;
    };

    skip("-");
    const bool isZeroFirst = token.starts_with('0');
    const auto whole = skipDigits();
    if (whole == 0 || (isZeroFirst && whole > 1)) return {};
    if (token.empty()) return {.isNumber = true, .isInteger = true};
    if (skip(".") && skipDigits() == 0) return {};
    if (skip("eE")) {
        skip("+-");
        if (skipDigits() == 0) return {};
    }
    return {.isNumber = token.empty()};
}

template <typename Integer>
bool isWithin(std::string_view token)
{
    Integer integer{};
    return std::from_chars(token.data(), token.data() + token.size(), integer).ec == std::errc{};
}

bool isTooSmallForADouble(std::string_view token)
{
    simdjson::dom::parser parser;
    double number = 1;
    return parser.parse(token.data(), token.size()).get(number) == simdjson::SUCCESS;
}

/// `from_chars` does not say whether a number is too large or too small; the parser reads the small ones as zero.
bool isWithinADouble(std::string_view token)
{
    double number = 0;
    return std::from_chars(token.data(), token.data() + token.size(), number).ec == std::errc{}
    || isTooSmallForADouble(token);
}

void repair(std::span<char> token)
{
    // No shorter number is out of the range of a double or an integer.
    if (token.size() < mark.size()) return;
    const std::string_view text(token.data(), token.size());
    const auto [isNumber, isInteger] = grammarOf(text);
    if (!isNumber || (isInteger && (isWithin<std::int64_t>(text) || isWithin<std::uint64_t>(text)))) return;
    if (!isWithinADouble(text)) {
        const auto rest = std::ranges::copy(mark, token.begin()).out;
        std::fill(rest, token.end(), ' ');
    } else if (isInteger) {
        // Of at least nineteen digits, the last two do not change a double.
        std::ranges::copy(std::string_view("e2"), token.end() - 2);
    }
}

/// The end of the string that starts at `at`.
std::size_t endOfString(std::string_view body, std::size_t at)
{
    for (++at; at < body.size() && body[at] != '"'; ++at) {
        if (body[at] == '\\') ++at;
    }
    return at + 1;
}

}  // namespace

std::string withNumbersInRange(std::string_view body, std::size_t padding)
{
    std::string repaired;
    repaired.reserve(body.size() + padding);
    repaired = body;
    for (std::size_t at = 0; at < body.size();) {
        at = body.find_first_of("\"-0123456789", at);
        if (at == std::string_view::npos) break;
        if (body[at] == '"') {
            at = endOfString(body, at);
            continue;
        }
        const auto end = std::min(body.find_first_not_of("+-.eE0123456789", at), body.size());
        repair(std::span(repaired).subspan(at, end - at));
        at = end;
    }
    return repaired;
}

}  // namespace larkspan::model
