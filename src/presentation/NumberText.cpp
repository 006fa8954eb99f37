#include "presentation/NumberText.h"

#include <array>
#include <cstdio>

namespace larkspan::presentation {

namespace {

// The largest number has 309 digits before the point.
using Digits = std::array<char, 400>;

std::string taken(const Digits& digits, int length)
{
    return {digits.data(), static_cast<std::size_t>(length)};
}

}  // namespace

std::string fixedText(double value, int digits)
{
    Digits text{};
    return taken(text, std::snprintf(text.data(), text.size(), "%.*f", digits, value));
}

std::string signedText(double value, int digits)
{
    Digits text{};
    return taken(text, std::snprintf(text.data(), text.size(), "%+.*f", digits, value));
}

}  // namespace larkspan::presentation
