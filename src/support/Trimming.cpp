#include "support/Trimming.h"

#include <algorithm>
#include <array>

namespace larkspan::support {

namespace {

using namespace std::string_view_literals;

constexpr std::array whiteSpace{
    " "sv, "\t"sv, "\n"sv, "\v"sv, "\f"sv, "\r"sv,
    "\xC2\x85"sv,  // next line
    "\xC2\xA0"sv,  // no-break space
    "\xE1\x9A\x80"sv,  // Ogham space mark
    "\xE2\x80\x80"sv, "\xE2\x80\x81"sv, "\xE2\x80\x82"sv, "\xE2\x80\x83"sv, "\xE2\x80\x84"sv, "\xE2\x80\x85"sv,
    "\xE2\x80\x86"sv, "\xE2\x80\x87"sv, "\xE2\x80\x88"sv, "\xE2\x80\x89"sv, "\xE2\x80\x8A"sv,  // en quad to hair space
    "\xE2\x80\x8B"sv,  // zero width space, which pages like to leave in what is copied from them
    "\xE2\x80\xA8"sv, "\xE2\x80\xA9"sv,  // line and paragraph separator
    "\xE2\x80\xAF"sv,  // narrow no-break space
    "\xE2\x81\x9F"sv,  // mathematical space
    "\xE3\x80\x80"sv,  // ideographic space
};

}  // namespace

std::string_view trimmed(std::string_view text)
{
    const auto lengthOfSpace = [](auto matches) {
        const auto found = std::ranges::find_if(whiteSpace, matches);
        return found == whiteSpace.end() ? 0 : found->size();
    };
    while (const auto length = lengthOfSpace([text](auto space) { return text.starts_with(space); })) {
        text.remove_prefix(length);
    }
    while (const auto length = lengthOfSpace([text](auto space) { return text.ends_with(space); })) {
        text.remove_suffix(length);
    }
    return text;
}

}  // namespace larkspan::support
