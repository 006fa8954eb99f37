#include "presentation/text/NumberText.h"

#include <gtest/gtest.h>

namespace larkspan::presentation {

namespace {

TEST(NumberText, HasThatManyDigitsBehindThePoint)
{
    EXPECT_EQ(fixedText(311.6, 0), "312");
    EXPECT_EQ(fixedText(99.975, 2), "99.97") << "of the number as the machine holds it, which is a little below";
    EXPECT_EQ(fixedText(0, 1), "0.0");
    EXPECT_EQ(fixedText(-3.25, 1), "-3.2");
}

TEST(NumberText, WithItsSignHasAPlusForZeroToo)
{
    EXPECT_EQ(signedText(0, 1), "+0.0");
    EXPECT_EQ(signedText(4.25, 1), "+4.2");
    EXPECT_EQ(signedText(-4.35, 1), "-4.3");
}

TEST(NumberText, OfTheLargestNumberIsWhole)
{
    EXPECT_EQ(fixedText(1.7e308, 2).size(), 309u + 3u);
}

}  // namespace

}  // namespace larkspan::presentation
