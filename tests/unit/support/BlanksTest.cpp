#include "support/Blanks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace larkspan::support {

namespace {

using testing::ElementsAre;

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

TEST(Lines, AreCutAtEveryLineEnd)
{
    EXPECT_THAT(linesOf("a\nb\vc\fd\re\u0085"
                        "f\u2028g\u2029h"),
        ElementsAre("a", "b", "c", "d", "e", "f", "g", "h"));
}

TEST(Lines, ThatAreEmptyAreKept)
{
    EXPECT_THAT(linesOf(""), ElementsAre(""));
    EXPECT_THAT(linesOf("\n"), ElementsAre("", ""));
    EXPECT_THAT(linesOf("\na\n\n"), ElementsAre("", "a", "", ""));
}

TEST(Lines, EndOnceAtACarriageReturnWithItsLineFeed)
{
    EXPECT_THAT(linesOf("a\r\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(linesOf("a\r\r\nb\n\rc\r"), ElementsAre("a", "", "b", "", "c", ""));
}

TEST(Lines, KeepTheirBadBytes)
{
    EXPECT_THAT(linesOf("\xC2\n\xE2\x80\n\xE2\x80"), ElementsAre("\xC2", "\xE2\x80", "\xE2\x80"));
}

}  // namespace

}  // namespace larkspan::support
