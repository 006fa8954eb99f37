#include "presentation/text/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace larkspan::presentation {

std::string fixedText(double value, int digits)
{
    // The largest number has 309 digits before the point. Unlike printf, this does not depend on the locale, which Qt
    // sets from the environment.
    std::array<char, 400> text{};
    return {text.begin(), std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, digits).ptr};
}

std::string signedText(double value, int digits)
{
    return (std::signbit(value) ? "" : "+") + fixedText(value, digits);
}

}  // namespace larkspan::presentation
