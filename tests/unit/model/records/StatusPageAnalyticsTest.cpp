#include "model/records/StatusPageAnalytics.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

TEST(StatusPageAnalytics, AreAPeriodAndACount)
{
    EXPECT_EQ(decoded<StatusPageAnalytics>(R"({"data":{"period":"30d","view_count":1204}})"),
        (StatusPageAnalytics{.period = "30d", .viewCount = 1204}));
    EXPECT_EQ(failureOf<StatusPageAnalytics>(R"({"data":{"view_count":1}})"), keyNotFound("data.period"));
    EXPECT_EQ(failureOf<StatusPageAnalytics>(R"({"data":{"period":"30d"}})"), keyNotFound("data.view_count"));
    EXPECT_EQ(failureOf<StatusPageAnalytics>(R"({"data":{"period":"30d","view_count":"1"}})"),
        typeMismatch("data.view_count", "an integer", "a string"));
}

TEST(SubscriberCount, IsAWholeNumber)
{
    EXPECT_EQ(decoded<SubscriberCount>(R"({"count":318})").count, 318);
    EXPECT_EQ(failureOf<SubscriberCount>(R"({"data":{}})"), keyNotFound("data.count"));
    EXPECT_EQ(failureOf<SubscriberCount>(R"({"data":{"count":1.5}})"),
        dataCorrupted("data.count", "Not a 64-bit integer: 1.5"));
}

}  // namespace

}  // namespace larkspan::model
