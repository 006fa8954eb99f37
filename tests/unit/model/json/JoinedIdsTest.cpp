#include "model/json/JoinedIds.h"

#include <gtest/gtest.h>

namespace larkspan::model {

namespace {

TEST(JoinedIds, AreSeparatedByCommasWithoutBlanksInTheirOrder)
{
    EXPECT_EQ(joinedIds({"b", "", "a,c"}), "b,,a,c");
    EXPECT_EQ(joinedIds({"b"}), "b");
    EXPECT_EQ(joinedIds({}), "");
}

}  // namespace

}  // namespace larkspan::model
