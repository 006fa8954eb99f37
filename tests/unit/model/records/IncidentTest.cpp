#include "model/records/Incident.h"

#include <gtest/gtest.h>

#include <vector>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

const support::Time halfPastNine = std::chrono::sys_days{2026y / 3 / 1} + 9h + 30min;

/// An incident with the required keys and `more`.
std::string incidentWith(const std::string& more)
{
    return R"({"id":"i1","title":"Slow","created_at":"2026-03-01T09:30:00Z")" + (more.empty() ? more : ',' + more)
        + '}';
}

Incident incidentDecodedWith(const std::string& more)
{
    return decoded<Incident>(incidentWith(more));
}

DecodingFailure failureWith(const std::string& more)
{
    return failureOf<Incident>("{\"data\":" + incidentWith(more) + '}');
}

TEST(Incident, ReadsEveryFieldInBothShapes)
{
    const std::string body = R"({"id":"i1","title":"Slow","message":"We look","created_at":"2026-03-01T09:30:00Z",
        "updated_at":"2026-03-01T09:31:00Z","ended_at":"2026-03-01T09:32:00Z","acknowledged_at":"2026-03-01T09:33:00Z",
        "assigned_to_user_id":"u1","component_id":"c1","status_page_id":"p1","severity_name":"Major",
        "incident_state":"Investigating","incident_state_id":"2"})";
    const Incident expected{.id = "i1",
        .status = IncidentStatus::acknowledged,
        .title = "Slow",
        .message = "We look",
        .createdAt = halfPastNine,
        .updatedAt = halfPastNine + 1min,
        .resolvedAt = halfPastNine + 2min,
        .acknowledged = true,
        .assignedTo = "u1",
        .componentId = "c1",
        .statusPageId = "p1",
        .severityName = "Major",
        .incidentState = "Investigating"};

    EXPECT_EQ(decoded<Incident>(body), expected);
    EXPECT_EQ(decoded<Incident>("{\"data\":" + body + '}'), expected);
}

TEST(Incident, WithOnlyItsRequiredKeysIsActive)
{
    EXPECT_EQ(incidentDecodedWith(""), (Incident{.id = "i1", .title = "Slow", .createdAt = halfPastNine}));
    EXPECT_EQ(incidentDecodedWith("").status, IncidentStatus::active);
}

TEST(Incident, TakesNullInAnyOptionalKeyForAMissingOne)
{
    EXPECT_EQ(incidentDecodedWith(R"("message":null,"updated_at":null,"ended_at":null,"acknowledged_at":null,
        "assigned_to_user_id":null,"component_id":null,"status_page_id":null,"severity_name":null,"incident_state":null,
        "incident_state_id":null)"),
        incidentDecodedWith(""));
}

TEST(Incident, IsNotReadFromTheNamesOfItsFieldsWhereItsKeysDiffer)
{
    EXPECT_EQ(incidentDecodedWith(R"("status":"resolved","acknowledged":true,"resolved_at":"n/a","assigned_to":1)"),
        incidentDecodedWith(""));
}

TEST(Incident, DataNullIsADecodingErrorForOneAndAnEmptyListForMany)
{
    EXPECT_EQ(failureOf<Incident>(R"({"data":null})"), valueNotFound("data", "an object"));
    EXPECT_EQ(decoded<std::vector<Incident>>(R"({"data":null})"), std::vector<Incident>{});
}

TEST(Incident, ThatIsBadFailsItsWholeList)
{
    EXPECT_EQ(failureOf<std::vector<Incident>>("{\"data\":[" + incidentWith("") + R"(,{"id":"i2"}]})"),
        keyNotFound("data[1].title"));
}

struct RequiredRow {
    std::string incident;
    DecodingFailure failure;
};

void PrintTo(const RequiredRow& row, std::ostream* out)
{
    *out << row.incident;
}

class IncidentRequiredKey : public testing::TestWithParam<RequiredRow> {};

TEST_P(IncidentRequiredKey, FailsWhenMissingNullOrOfAnotherType)
{
    EXPECT_EQ(failureOf<Incident>("{\"data\":" + GetParam().incident + '}'), GetParam().failure);
}

INSTANTIATE_TEST_SUITE_P(Each, IncidentRequiredKey,
    testing::Values(RequiredRow{R"({"title":"Slow","created_at":"2026-03-01T09:30:00Z"})", keyNotFound("data.id")},
        RequiredRow{R"({"id":null})", valueNotFound("data.id", "a string")},
        RequiredRow{R"({"id":4})", typeMismatch("data.id", "a string", "a number")},
        RequiredRow{R"({"id":"i1","created_at":"2026-03-01T09:30:00Z"})", keyNotFound("data.title")},
        RequiredRow{R"({"id":"i1","title":null})", valueNotFound("data.title", "a string")},
        RequiredRow{R"({"id":"i1","title":["Slow"]})", typeMismatch("data.title", "a string", "a list")},
        RequiredRow{R"({"id":"i1","title":"Slow"})", keyNotFound("data.created_at")},
        RequiredRow{R"({"id":"i1","title":"Slow","created_at":null})", valueNotFound("data.created_at", "a string")},
        RequiredRow{
            R"({"id":"i1","title":"Slow","created_at":1})", typeMismatch("data.created_at", "a string", "a number")},
        RequiredRow{R"({"id":"i1","title":"Slow","created_at":"today"})",
            dataCorrupted("data.created_at", "Cannot decode date: today")}));

class IncidentOptionalKey : public testing::TestWithParam<std::string> {};

TEST_P(IncidentOptionalKey, FailsWithANumberInIt)
{
    EXPECT_EQ(failureWith('"' + GetParam() + "\":4"), typeMismatch("data." + GetParam(), "a string", "a number"));
}

INSTANTIATE_TEST_SUITE_P(Each, IncidentOptionalKey,
    testing::Values("message", "updated_at", "ended_at", "acknowledged_at", "assigned_to_user_id", "component_id",
        "status_page_id", "severity_name", "incident_state", "incident_state_id"));

TEST(Incident, WithADateOfNeitherFormInAnOptionalFieldFailsAndWithItTheList)
{
    EXPECT_EQ(failureWith(R"("ended_at":"n/a")"), dataCorrupted("data.ended_at", "Cannot decode date: n/a"));
    EXPECT_EQ(failureWith(R"("updated_at":"n/a")"), dataCorrupted("data.updated_at", "Cannot decode date: n/a"));
    EXPECT_EQ(failureOf<std::vector<Incident>>("{\"data\":[" + incidentWith(R"("ended_at":"n/a")") + "]}"),
        dataCorrupted("data[0].ended_at", "Cannot decode date: n/a"));
}

TEST(Incident, IsAcknowledgedByAnyTextThatIsNotEmpty)
{
    EXPECT_TRUE(incidentDecodedWith(R"("acknowledged_at":"2026-03-01T09:30:00Z")").acknowledged);
    EXPECT_TRUE(incidentDecodedWith(R"("acknowledged_at":"n/a")").acknowledged);
    EXPECT_TRUE(incidentDecodedWith(R"("acknowledged_at":" ")").acknowledged);
    EXPECT_FALSE(incidentDecodedWith(R"("acknowledged_at":"")").acknowledged);
    EXPECT_FALSE(incidentDecodedWith(R"("acknowledged_at":null)").acknowledged);
}

TEST(Incident, WithState4AndAnAcknowledgementIsResolvedAndStillAcknowledged)
{
    const auto incident = incidentDecodedWith(R"("incident_state_id":"4","acknowledged_at":"2026-03-01T09:30:00Z")");
    EXPECT_EQ(incident.status, IncidentStatus::resolved);
    EXPECT_TRUE(incident.acknowledged);
}

TEST(Incident, WithoutAStateAndWithAnEmptyAcknowledgementIsActive)
{
    EXPECT_EQ(incidentDecodedWith(R"("acknowledged_at":"")").status, IncidentStatus::active);
}

TEST(Incident, WithState2AndNoAcknowledgementHasStatusAcknowledgedWhileTheFieldIsFalse)
{
    const auto incident = incidentDecodedWith(R"("incident_state_id":"2")");
    EXPECT_EQ(incident.status, IncidentStatus::acknowledged);
    EXPECT_FALSE(incident.acknowledged);
}

TEST(Incident, ThatHasEndedWithoutState4StaysActiveOrAcknowledged)
{
    const auto active = incidentDecodedWith(R"("ended_at":"2026-03-01T09:30:00Z")");
    EXPECT_EQ(active.status, IncidentStatus::active);
    EXPECT_EQ(active.resolvedAt, halfPastNine);
    const auto acknowledged = incidentDecodedWith(R"("ended_at":"2026-03-01T09:30:00Z","acknowledged_at":"x")");
    EXPECT_EQ(acknowledged.status, IncidentStatus::acknowledged);
    EXPECT_EQ(acknowledged.resolvedAt, halfPastNine);
}

struct StatusRow {
    std::string stateId;
    bool isAcknowledged;
    IncidentStatus status;
};

void PrintTo(const StatusRow& row, std::ostream* out)
{
    *out << row.stateId << (row.isAcknowledged ? ", acknowledged" : "");
}

class StatusOfAnIncident : public testing::TestWithParam<StatusRow> {};

TEST_P(StatusOfAnIncident, ComesFromItsStateComparedExactlyAndItsAcknowledgement)
{
    const auto& [stateId, isAcknowledged, status] = GetParam();
    const std::string acknowledgement = isAcknowledged ? R"("acknowledged_at":"x",)" : "";
    EXPECT_EQ(incidentDecodedWith(acknowledgement + "\"incident_state_id\":" + stateId).status, status);
}

INSTANTIATE_TEST_SUITE_P(EachState, StatusOfAnIncident,
    testing::Values(StatusRow{"null", false, IncidentStatus::active},
        StatusRow{"null", true, IncidentStatus::acknowledged}, StatusRow{R"("1")", false, IncidentStatus::active},
        StatusRow{R"("1")", true, IncidentStatus::acknowledged},
        StatusRow{R"("2")", false, IncidentStatus::acknowledged},
        StatusRow{R"("2")", true, IncidentStatus::acknowledged},
        StatusRow{R"("3")", false, IncidentStatus::acknowledged},
        StatusRow{R"("3")", true, IncidentStatus::acknowledged}, StatusRow{R"("4")", false, IncidentStatus::resolved},
        StatusRow{R"("4")", true, IncidentStatus::resolved}, StatusRow{R"("04")", false, IncidentStatus::active},
        StatusRow{R"(" 4")", false, IncidentStatus::active}, StatusRow{R"("5")", true, IncidentStatus::acknowledged},
        StatusRow{R"("")", false, IncidentStatus::active}, StatusRow{R"("")", true, IncidentStatus::acknowledged}));

TEST(IncidentStatus, EachCaseHasItsRawText)
{
    EXPECT_EQ(rawText(IncidentStatus::active), "active");
    EXPECT_EQ(rawText(IncidentStatus::acknowledged), "acknowledged");
    EXPECT_EQ(rawText(IncidentStatus::resolved), "resolved");
    EXPECT_EQ(rawText(IncidentStatus::completed), "completed");
}

}  // namespace

}  // namespace larkspan::model
