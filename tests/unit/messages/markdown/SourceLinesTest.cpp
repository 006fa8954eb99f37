#include "messages/markdown/SourceLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace larkspan::messages {

namespace {

using testing::ElementsAre;

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

}  // namespace larkspan::messages
