#include "support/IgnoringCase.h"

#include <algorithm>

namespace larkspan::support {

namespace {

constexpr char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool equalsIgnoringCase(std::string_view text, std::string_view word)
{
    return std::ranges::equal(text, word, {}, lowered, lowered);
}

}  // namespace larkspan::support
