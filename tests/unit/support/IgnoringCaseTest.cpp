#include "support/IgnoringCase.h"

#include <gtest/gtest.h>

namespace larkspan::support {

namespace {

TEST(EqualsIgnoringCase, LooksPastTheCaseOfLettersAndNothingElse)
{
    EXPECT_TRUE(equalsIgnoringCase("Resolved", "resolved"));
    EXPECT_TRUE(equalsIgnoringCase("IN_PROGRESS", "in_progress"));
    EXPECT_TRUE(equalsIgnoringCase("", ""));
    EXPECT_FALSE(equalsIgnoringCase("resolve", "resolved"));
    EXPECT_FALSE(equalsIgnoringCase("resolved ", "resolved"));
    EXPECT_FALSE(equalsIgnoringCase("in-progress", "in_progress"));
    // These differ by the bit that distinguishes the cases of letters.
    EXPECT_FALSE(equalsIgnoringCase("@[", "`{"));
    EXPECT_FALSE(equalsIgnoringCase("re\u017folved", "resolved"));
}

}  // namespace

}  // namespace larkspan::support
