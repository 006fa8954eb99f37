#include "support/UnlessEmpty.h"

#include <gtest/gtest.h>

namespace larkspan::support {

namespace {

TEST(TextUnlessEmpty, IsTheTextAsItStandsAndNothingWhereThereIsNone)
{
    EXPECT_EQ(unlessEmpty(" "), " ");
    EXPECT_EQ(unlessEmpty(""), std::nullopt);
}

}  // namespace

}  // namespace larkspan::support
