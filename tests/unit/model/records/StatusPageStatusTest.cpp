#include "model/records/StatusPageStatus.h"

#include <gtest/gtest.h>

namespace larkspan::model {

namespace {

TEST(StatusPageStatus, EachCaseHasItsDisplayName)
{
    EXPECT_EQ(displayName(StatusPageStatus::operational), "Operational");
    EXPECT_EQ(displayName(StatusPageStatus::degraded), "Degraded");
    EXPECT_EQ(displayName(StatusPageStatus::down), "Down");
    EXPECT_EQ(displayName(StatusPageStatus::maintenance), "Maintenance");
    EXPECT_EQ(displayName(StatusPageStatus::unknown), "Unknown");
}

}  // namespace

}  // namespace larkspan::model
