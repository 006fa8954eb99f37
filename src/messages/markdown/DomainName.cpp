#include "messages/markdown/DomainName.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

// The names and numbers are those of RFC 3492, section 5.
constexpr std::uint64_t base = 36;
constexpr std::uint64_t tmin = 1;
constexpr std::uint64_t tmax = 26;
constexpr std::uint64_t skew = 38;
constexpr std::uint64_t damp = 700;
constexpr std::uint64_t initialBias = 72;
constexpr char32_t initialN = 0x80;

char digitOf(std::uint64_t value)
{
    return static_cast<char>(value < 26 ? 'a' + value : '0' + (value - 26));
}

std::uint64_t adapted(std::uint64_t delta, std::uint64_t points, bool isFirst)
{
    delta /= isFirst ? damp : 2;
    delta += delta / points;
    std::uint64_t k = 0;
    for (; delta > (base - tmin) * tmax / 2; k += base) delta /= base - tmin;
    return k + (base - tmin + 1) * delta / (delta + skew);
}

void appendNumber(std::string& text, std::uint64_t number, std::uint64_t bias)
{
    for (auto k = base;; k += base) {
        const auto threshold = std::clamp(k > bias ? k - bias : 0, tmin, tmax);
        if (number < threshold) break;
        text += digitOf(threshold + (number - threshold) % (base - threshold));
        number = (number - threshold) / (base - threshold);
    }
    text += digitOf(number);
}

std::vector<char32_t> charactersOf(std::string_view text)
{
    std::vector<char32_t> characters;
    while (!text.empty()) {
        const auto character = support::firstCharacter(text);
        characters.push_back(character.code);
        text.remove_prefix(character.length);
    }
    return characters;
}

std::string asciiLabel(std::string_view label)
{
    const auto characters = charactersOf(label);
    std::string text = "xn--";
    for (const auto character : characters) {
        if (character < initialN) text += static_cast<char>(character);
    }
    const std::uint64_t basic = text.size() - 4;
    if (basic == characters.size()) return std::string(label);
    if (basic > 0) text += '-';

    auto bias = initialBias;
    std::uint64_t delta = 0;
    auto handled = basic;
    for (auto n = initialN; handled < characters.size(); ++n, ++delta) {
        auto next = std::numeric_limits<char32_t>::max();
        for (const auto character : characters) {
            if (character >= n) next = std::min(next, character);
        }
        delta += (next - n) * (handled + 1);
        n = next;
        for (const auto character : characters) {
            if (character < n) ++delta;
            if (character != n) continue;
            appendNumber(text, delta, bias);
            bias = adapted(delta, handled + 1, handled == basic);
            delta = 0;
            ++handled;
        }
    }
    return text;
}

}  // namespace

std::string asciiDomainName(std::string_view host)
{
    const bool isASCII = std::ranges::all_of(host, [](unsigned char byte) { return byte < 0x80; });
    if (isASCII) return std::string(host);
    std::string name;
    for (auto dot = host.find('.'); dot != std::string_view::npos; dot = host.find('.')) {
        name += asciiLabel(host.substr(0, dot)) + '.';
        host.remove_prefix(dot + 1);
    }
    return name + asciiLabel(host);
}

}  // namespace larkspan::messages
