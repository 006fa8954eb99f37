#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::support {

/// Whether `bytes` is well-formed UTF-8: no overlong form, no surrogate, nothing past U+10FFFF.
bool isValidUtf8(std::string_view bytes);

/// A character and the bytes that it takes. A byte that begins no well-formed character is a U+FFFD of one byte.
struct Utf8Character {
    char32_t code;
    std::size_t length;

    bool isWellFormed() const { return code != U'\uFFFD' || length == 3; }
};

/// `bytes` is not empty.
Utf8Character firstCharacter(std::string_view bytes);

/// `bytes` is not empty.
Utf8Character lastCharacter(std::string_view bytes);

/// As much of well-formed `text` as has room in so many bytes, up to the end of a character.
std::string_view beginningOf(std::string_view text, std::size_t most);

/// Writes `code` behind `text`; a surrogate and what lies past U+10FFFF becomes U+FFFD.
void appendCharacter(std::string& text, char32_t code);

}  // namespace larkspan::support
