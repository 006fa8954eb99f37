#include "support/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace larkspan::support {

namespace {

using namespace std::string_view_literals;

class WellFormed : public testing::TestWithParam<std::string_view> {};
class IllFormed : public testing::TestWithParam<std::string_view> {};

TEST_P(WellFormed, IsValid)
{
    EXPECT_TRUE(isValidUtf8(GetParam()));
}

TEST_P(IllFormed, IsNotValid)
{
    EXPECT_FALSE(isValidUtf8(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Utf8, WellFormed,
    testing::Values(""sv, "plain"sv, "\0"sv, "\u00e9"sv, "\u2019"sv, "\U0001F426"sv, "\xED\x9F\xBF"sv, "\xEE\x80\x80"sv,
        "\xF4\x8F\xBF\xBF"sv));

INSTANTIATE_TEST_SUITE_P(Utf8, IllFormed,
    testing::Values("\x80"sv, "\xC3"sv, "\xC3\x28"sv, "\xC0\xAF"sv, "\xE0\x80\xAF"sv, "\xED\xA0\x80"sv,
        "\xF0\x80\x80\xAF"sv, "\xF4\x90\x80\x80"sv, "\xFF"sv, "\xF0\x9F\x90"sv, "caf\xE9"sv));

struct CharacterRow {
    std::string_view bytes;
    char32_t code;
    std::size_t length;
};

class FirstCharacter : public testing::TestWithParam<CharacterRow> {};
class LastCharacter : public testing::TestWithParam<CharacterRow> {};

TEST_P(FirstCharacter, IsReadWithItsLength)
{
    const auto character = firstCharacter(GetParam().bytes);
    EXPECT_EQ(character.code, GetParam().code);
    EXPECT_EQ(character.length, GetParam().length);
}

TEST_P(LastCharacter, IsReadWithItsLength)
{
    const auto character = lastCharacter(GetParam().bytes);
    EXPECT_EQ(character.code, GetParam().code);
    EXPECT_EQ(character.length, GetParam().length);
}

INSTANTIATE_TEST_SUITE_P(Utf8, FirstCharacter,
    testing::Values(CharacterRow{"ab"sv, U'a', 1}, CharacterRow{"\0"sv, 0, 1}, CharacterRow{"\u00e9b"sv, U'\u00e9', 2},
        CharacterRow{"\u2019b"sv, U'\u2019', 3}, CharacterRow{"\U0001F426b"sv, U'\U0001F426', 4},
        CharacterRow{"\uFFFDb"sv, U'\uFFFD', 3}, CharacterRow{"\xC3"sv, U'\uFFFD', 1},
        CharacterRow{"\xC3z"sv, U'\uFFFD', 1}, CharacterRow{"\xA9z"sv, U'\uFFFD', 1},
        CharacterRow{"\xED\x9F\xBF"sv, char32_t{0xD7FF}, 3}, CharacterRow{"\xED\xA0\x80"sv, U'\uFFFD', 1},
        CharacterRow{"\xED\xBF\xBF"sv, U'\uFFFD', 1}, CharacterRow{"\xEE\x80\x80"sv, char32_t{0xE000}, 3},
        CharacterRow{"\xF4\x8F\xBF\xBF"sv, char32_t{0x10'FFFF}, 4}, CharacterRow{"\xF4\x90\x80\x80"sv, U'\uFFFD', 1}));

INSTANTIATE_TEST_SUITE_P(Utf8, LastCharacter,
    testing::Values(CharacterRow{"ba"sv, U'a', 1}, CharacterRow{"b\u00e9"sv, U'\u00e9', 2},
        CharacterRow{"b\u2019"sv, U'\u2019', 3}, CharacterRow{"b\U0001F426"sv, U'\U0001F426', 4},
        CharacterRow{"b\uFFFD"sv, U'\uFFFD', 3}, CharacterRow{"b\xC3"sv, U'\uFFFD', 1},
        CharacterRow{"b\xA9"sv, U'\uFFFD', 1}, CharacterRow{"\u00e9\xA9"sv, U'\uFFFD', 1},
        CharacterRow{"\xA9\xA9\xA9\xA9\xA9"sv, U'\uFFFD', 1}, CharacterRow{"\xA9"sv, U'\uFFFD', 1}));

TEST(Character, IsWellFormedUnlessItStandsForABadByte)
{
    EXPECT_TRUE(firstCharacter("\uFFFD").isWellFormed());
    EXPECT_FALSE(firstCharacter("\xFF").isWellFormed());
}

TEST(Character, IsAppendedInAsManyBytesAsItTakes)
{
    std::string text;
    for (const char32_t code : {U'a', U'\u00e9', U'\u2019', U'\U0001F426'}) appendCharacter(text, code);
    EXPECT_EQ(text, "a\u00e9\u2019\U0001F426");
}

TEST(Character, AtTheEndsOfEachLengthIsReadBackAsItWasAppended)
{
    for (const char32_t code : {U'\x7F', U'\u0080', U'\u07FF', U'\u0800', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
        std::string text;
        appendCharacter(text, code);
        EXPECT_TRUE(isValidUtf8(text)) << static_cast<std::uint32_t>(code);
        EXPECT_EQ(firstCharacter(text).code, code);
        EXPECT_EQ(firstCharacter(text).length, text.size());
    }
}

TEST(Character, ThatIsNoneIsAppendedAsAReplacement)
{
    std::string text;
    appendCharacter(text, 0xD800);
    appendCharacter(text, 0x11'0000);
    EXPECT_EQ(text, "\uFFFD\uFFFD");
}

}  // namespace

}  // namespace larkspan::support
