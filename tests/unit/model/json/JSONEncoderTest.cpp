#include "model/json/JSONEncoder.h"

#include <gtest/gtest.h>

#include "model/bodies/ComponentRequests.h"
#include "model/bodies/IncidentRequests.h"
#include "model/bodies/MaintenanceRequests.h"
#include "model/bodies/UpdateStatusPageRequest.h"
#include "model/json/EncodingError.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

const support::Time halfPastNine = std::chrono::sys_days{2026y / 3 / 1} + 9h + 30min;
const JSONEncoder encoder;

TEST(CreateIncidentRequest, WritesEveryField)
{
    EXPECT_EQ(encoder.encode(CreateIncidentRequest{.title = "T",
                  .message = "M",
                  .statusPageId = "p",
                  .componentId = "c",
                  .monitorId = "m",
                  .notifySubscribers = true}),
        R"({"title":"T","message":"M","status_page_id":"p","component_id":"c","monitor_id":"m","notify_subscribers":true})");
}

TEST(CreateIncidentRequest, WithoutAMessageHasNoMessageKeyAtAll)
{
    EXPECT_EQ(encoder.encode(CreateIncidentRequest{.title = "T"}), R"({"title":"T","notify_subscribers":false})");
}

TEST(AppendIncidentUpdateRequest, WritesEveryField)
{
    EXPECT_EQ(encoder.encode(AppendIncidentUpdateRequest{.message = "M", .incidentStateId = "4"}),
        R"({"message":"M","incident_state_id":"4","append_update":true})");
}

TEST(AppendIncidentUpdateRequest, AppendsAnUpdateUnlessToldOtherwise)
{
    EXPECT_EQ(encoder.encode(AppendIncidentUpdateRequest{}), R"({"append_update":true})");
    EXPECT_EQ(encoder.encode(AppendIncidentUpdateRequest{.appendUpdate = false}), R"({"append_update":false})");
}

TEST(CreateMaintenanceRequest, WritesEveryFieldAndItsDatesInWholeSeconds)
{
    EXPECT_EQ(encoder.encode(CreateMaintenanceRequest{.title = "T",
                  .message = "M",
                  .statusPageId = "p",
                  .startAt = halfPastNine,
                  .endAt = halfPastNine + 1h + 999ms,
                  .affectedComponents = "c1,c2",
                  .affectedMonitorIds = "m1"}),
        R"({"title":"T","message":"M","status_page_id":"p","start_at":"2026-03-01T09:30:00Z",)"
        R"("end_at":"2026-03-01T10:30:00Z","affected_components":"c1,c2","affected_monitor_ids":"m1"})");
}

TEST(CreateMaintenanceRequest, LeavesOutWhatIsAbsent)
{
    EXPECT_EQ(encoder.encode(CreateMaintenanceRequest{.startAt = halfPastNine, .endAt = halfPastNine}),
        R"({"title":"","status_page_id":"","start_at":"2026-03-01T09:30:00Z","end_at":"2026-03-01T09:30:00Z"})");
}

TEST(UpdateMaintenanceRequest, WritesEveryField)
{
    EXPECT_EQ(encoder.encode(UpdateMaintenanceRequest{.title = "T",
                  .message = "M",
                  .startAt = halfPastNine,
                  .endAt = halfPastNine + 1h,
                  .affectedComponents = "c1",
                  .affectedMonitorIds = "m1,m2"}),
        R"({"title":"T","message":"M","start_at":"2026-03-01T09:30:00Z","end_at":"2026-03-01T10:30:00Z",)"
        R"("affected_components":"c1","affected_monitor_ids":"m1,m2"})");
}

TEST(UpdateMaintenanceRequest, WithNothingToChangeIsAnEmptyObject)
{
    EXPECT_EQ(encoder.encode(UpdateMaintenanceRequest{}), "{}");
}

TEST(CreateComponentRequest, WritesEveryFieldAndLeavesOutWhatIsAbsent)
{
    EXPECT_EQ(encoder.encode(CreateComponentRequest{.name = "N", .description = "D", .groupId = "g"}),
        R"({"name":"N","description":"D","group_id":"g"})");
    EXPECT_EQ(encoder.encode(CreateComponentRequest{.name = "N"}), R"({"name":"N"})");
}

TEST(UpdateComponentRequest, WritesEveryFieldAndLeavesOutWhatIsAbsent)
{
    EXPECT_EQ(encoder.encode(UpdateComponentRequest{.name = "N", .description = "D", .status = "up", .groupId = "g"}),
        R"({"name":"N","description":"D","status":"up","group_id":"g"})");
    EXPECT_EQ(encoder.encode(UpdateComponentRequest{}), "{}");
}

TEST(CreateGroupRequest, IsAName)
{
    EXPECT_EQ(encoder.encode(CreateGroupRequest{.name = "N"}), R"({"name":"N"})");
}

TEST(UpdateGroupRequest, IsANameOrNothing)
{
    EXPECT_EQ(encoder.encode(UpdateGroupRequest{.name = "N"}), R"({"name":"N"})");
    EXPECT_EQ(encoder.encode(UpdateGroupRequest{}), "{}");
}

TEST(UpdateStatusPageRequest, WritesEveryFieldAndLeavesOutWhatIsAbsent)
{
    EXPECT_EQ(encoder.encode(UpdateStatusPageRequest{.title = "T", .description = "D"}),
        R"({"title":"T","description":"D"})");
    EXPECT_EQ(encoder.encode(UpdateStatusPageRequest{}), "{}");
}

TEST(JSONEncoder, EscapesWhatJSONCannotHoldAsItIsAndNothingElse)
{
    EXPECT_EQ(encoder.encode(CreateGroupRequest{.name = std::string("\0 \x01\x1f !~\x7f/\u00e9", 11)}),
        "{\"name\":\"\\u0000 \\u0001\\u001f !~\x7f/\u00e9\"}");
    EXPECT_EQ(encoder.encode(CreateGroupRequest{.name = "\b\f\n\r\t\"\\"}), R"({"name":"\b\f\n\r\t\"\\"})");
}

TEST(JSONEncoder, FailsOnTextThatIsNotUTF8)
{
    EXPECT_THROW(encoder.encode(CreateIncidentRequest{.title = "\xC0\x80"}), EncodingError);
}

}  // namespace

}  // namespace larkspan::model
