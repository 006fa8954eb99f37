#pragma once

#include <span>
#include <string_view>

namespace larkspan::messages {

// Generated from Python's tables of HTML and Unicode; see character_tables.py.

struct NamedCharacter {
    std::string_view name;
    std::string_view text;
};

/// HTML's named characters, sorted by name.
std::span<const NamedCharacter> namedCharacters();

struct CharacterRange {
    char32_t first;
    char32_t last;
};

/// The characters that are drawn on or joined with the previous one: marks, joiners, the later parts of Hangul
/// syllables, modifiers and tags of emoji. Sorted.
std::span<const CharacterRange> joiningCharacters();

}  // namespace larkspan::messages
