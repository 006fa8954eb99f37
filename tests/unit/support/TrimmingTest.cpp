#include "support/Trimming.h"

#include <gtest/gtest.h>

#include <string_view>

namespace larkspan::support {

namespace {

struct TrimRow {
    std::string_view text;
    std::string_view trimmed;
};

class Trimmed : public testing::TestWithParam<TrimRow> {};

TEST_P(Trimmed, LosesTheSpaceAtItsEndsAndNothingElse)
{
    EXPECT_EQ(trimmed(GetParam().text), GetParam().trimmed);
}

INSTANTIATE_TEST_SUITE_P(Texts, Trimmed,
    testing::Values(TrimRow{"", ""}, TrimRow{"key", "key"}, TrimRow{"  key\n", "key"}, TrimRow{"\t\r\n\v\f ", ""},
        TrimRow{"a key", "a key"}, TrimRow{"\u00a0key\u2003", "key"}, TrimRow{"\u200bkey\u2028", "key"},
        TrimRow{"\u3000\u205f\u202f\u1680\u0085key", "key"}, TrimRow{"\u00e9", "\u00e9"},
        TrimRow{"\xA0key", "\xA0key"}));

class Blank : public testing::TestWithParam<char32_t> {};
class LineEnd : public testing::TestWithParam<char32_t> {};

TEST_P(Blank, IsNoLineEnd)
{
    EXPECT_TRUE(isBlank(GetParam()));
    EXPECT_FALSE(isLineEnd(GetParam()));
}

TEST_P(LineEnd, IsNoBlank)
{
    EXPECT_TRUE(isLineEnd(GetParam()));
    EXPECT_FALSE(isBlank(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Characters, Blank,
    testing::Values(
        U' ', U'\t', U'\u00A0', U'\u1680', U'\u2000', U'\u2005', U'\u200A', U'\u202F', U'\u205F', U'\u3000'));

INSTANTIATE_TEST_SUITE_P(
    Characters, LineEnd, testing::Values(U'\n', U'\v', U'\f', U'\r', char32_t{0x85}, U'\u2028', U'\u2029'));

TEST(Characters, ThatAreNeitherBlankNorLineEnd)
{
    for (const char32_t character : {U'a', U'\0', U'\u001F', U'\u180E', U'\u1FFF', U'\u200B', U'\u2027', U'\uFEFF'}) {
        EXPECT_FALSE(isBlank(character)) << std::hex << static_cast<unsigned>(character);
        EXPECT_FALSE(isLineEnd(character)) << std::hex << static_cast<unsigned>(character);
    }
}

TEST(BlanksAround, AreTakenFromBothEndsAndNotFromWithin)
{
    EXPECT_EQ(withoutBlanksAround(" \t\u00A0a b\u3000\u2003 "), "a b");
    EXPECT_EQ(withoutBlanksAround("a"), "a");
    EXPECT_EQ(withoutBlanksAround(" \u2009\t"), "");
    EXPECT_EQ(withoutBlanksAround(""), "");
}

TEST(BlanksAround, EndAtALineEndAndAtABadByte)
{
    EXPECT_EQ(withoutBlanksAround(" \n "), "\n");
    EXPECT_EQ(withoutBlanksAround(" \xA0 "), "\xA0");
    EXPECT_EQ(withoutBlanksAround(" \xE2\x80 "), "\xE2\x80");
}

}  // namespace

}  // namespace larkspan::support
