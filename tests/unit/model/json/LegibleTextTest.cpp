#include "model/json/LegibleText.h"

#include <gtest/gtest.h>

namespace larkspan::model {

namespace {

TEST(LegibleText, StaysAsItIsUpToItsLimit)
{
    EXPECT_EQ(legible("", 4), "");
    EXPECT_EQ(legible("abcd", 4), "abcd");
    EXPECT_EQ(legible("größe", 7), "größe");
}

TEST(LegibleText, IsCutBetweenTwoCharactersAndEndsInAnEllipsis)
{
    EXPECT_EQ(legible("abcde", 4), "abcd…");
    EXPECT_EQ(legible("äöü", 3), "ä…");
    EXPECT_EQ(legible("a😀b", 4), "a…");
    EXPECT_EQ(legible("😀", 2), "…");
}

TEST(LegibleText, ShowsControlCharactersAsReplacementCharacters)
{
    EXPECT_EQ(legible(std::string_view("a\0b\nc\x1b[d\x7f", 9), 20), "a\uFFFDb\uFFFDc\uFFFD[d\uFFFD");
}

}  // namespace

}  // namespace larkspan::model
