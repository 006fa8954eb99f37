#include "messages/markdown/CharacterReference.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "messages/markdown/CharacterTables.h"
#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

/// `digits` consists of digits of `base` only.
std::string characterOf(std::string_view digits, int base)
{
    std::uint32_t code = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), code, base);
    const bool isCharacter = read.ec == std::errc{} && code != 0;
    std::string text;
    support::appendCharacter(text, isCharacter ? char32_t{code} : U'\uFFFD');
    return text;
}

}  // namespace

std::string decodedCharacterReference(std::string_view reference)
{
    const auto name = reference.substr(1, reference.size() - 2);
    if (name.starts_with("#x") || name.starts_with("#X")) return characterOf(name.substr(2), 16);
    if (name.starts_with('#')) return characterOf(name.substr(1), 10);
    const auto known = namedCharacters();
    const auto found = std::ranges::lower_bound(known, name, {}, &NamedCharacter::name);
    return std::string(found != known.end() && found->name == name ? found->text : reference);
}

}  // namespace larkspan::messages
