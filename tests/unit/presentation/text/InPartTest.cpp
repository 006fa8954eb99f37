#include "presentation/text/InPart.h"

#include <gtest/gtest.h>

namespace larkspan::presentation {

namespace {

TEST(InPart, ATextThatFitsIsWhole)
{
    EXPECT_EQ(inPart("", 4), "");
    EXPECT_EQ(inPart("four", 4), "four");
}

TEST(InPart, ALongerTextEndsAtACharacterAndSaysThatThereIsMore)
{
    EXPECT_EQ(inPart("fives", 4), "five…");
    EXPECT_EQ(inPart("äää", 3), "ä…");
    EXPECT_EQ(inPart("語", 2), "…");
}

TEST(InPart, OfLinesThatAreAllShownThereAreNoMore)
{
    EXPECT_EQ(moreText(0), "");
    EXPECT_EQ(moreText(100), "");
    EXPECT_EQ(moreText(101), "and 1 more");
}

}  // namespace

}  // namespace larkspan::presentation
