#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::support {

/// Whether `bytes` is well-formed UTF-8: no overlong form, no surrogate, nothing above U+10FFFF.
bool isValidUtf8(std::string_view bytes);

/// A character and its number of bytes. A byte that starts no well-formed character is a U+FFFD of one byte.
struct Utf8Character {
    char32_t code;
    std::size_t length;

    bool isWellFormed() const { return code != U'\uFFFD' || length == 3; }
};

/// `bytes` must not be empty.
Utf8Character firstCharacter(std::string_view bytes);

/// `bytes` must not be empty.
Utf8Character lastCharacter(std::string_view bytes);

/// The longest beginning of `text` that has at most `most` bytes and ends after a whole character. `text` must be
/// valid.
std::string_view beginningOf(std::string_view text, std::size_t most);

/// The number of bytes of the first `characters` characters of `text`; of all of them if it has no more. `text` must be
/// valid.
std::size_t bytesOf(std::string_view text, std::size_t characters);

/// Appends `code` to `text`; a surrogate or a code above U+10FFFF becomes U+FFFD.
void appendCharacter(std::string& text, char32_t code);

}  // namespace larkspan::support
