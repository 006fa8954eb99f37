#include "model/records/Maintenance.h"

#include <gtest/gtest.h>

#include <vector>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

const support::Time now = std::chrono::sys_days{2026y / 3 / 1} + 12h;
const std::string before = "\"2026-03-01T11:59:59.999Z\"";
const std::string atNow = "\"2026-03-01T12:00:00Z\"";
const std::string after = "\"2026-03-01T12:00:00.001Z\"";
const std::string longAfter = "\"2026-03-02T12:00:00Z\"";

/// A maintenance with the required keys and `more`.
std::string maintenanceWith(const std::string& more)
{
    return R"({"id":"m1","title":"Upgrade")" + (more.empty() ? more : ',' + more) + '}';
}

Maintenance maintenanceDecodedWith(const std::string& more)
{
    return decoded<Maintenance>(maintenanceWith(more), now);
}

DecodingFailure failureWith(const std::string& more)
{
    return failureOf<Maintenance>("{\"data\":" + maintenanceWith(more) + '}');
}

TEST(Maintenance, ReadsEveryFieldInBothShapes)
{
    const std::string body = R"({"id":"m1","title":"Upgrade","message":"Brief","status":"ignored",
        "start_at":"2026-03-01T11:00:00Z","started_at":"2026-03-01T11:01:00Z","end_at":"2026-03-01T13:00:00Z",
        "created_at":"2026-03-01T10:00:00Z","updated_at":"2026-03-01T10:01:00Z","affected_components":"c1,c2",
        "status_page_id":"p1"})";
    const Maintenance expected{.id = "m1",
        .title = "Upgrade",
        .message = "Brief",
        .status = "in_progress",
        .scheduledFor = now - 1h,
        .startedAt = now - 59min,
        .completedAt = now + 1h,
        .createdAt = now - 2h,
        .updatedAt = now - 119min,
        .componentIds = {{"c1", "c2"}},
        .statusPageId = "p1"};

    EXPECT_EQ(decoded<Maintenance>(body, now), expected);
    EXPECT_EQ(decoded<Maintenance>("{\"data\":" + body + '}', now), expected);
}

TEST(Maintenance, WithOnlyItsRequiredKeysIsScheduled)
{
    EXPECT_EQ(maintenanceDecodedWith(""), (Maintenance{.id = "m1", .title = "Upgrade", .status = "scheduled"}));
}

TEST(Maintenance, TakesNullInAnyOptionalKeyForAMissingOne)
{
    EXPECT_EQ(maintenanceDecodedWith(R"("message":null,"status":null,"start_at":null,"started_at":null,"end_at":null,
        "created_at":null,"updated_at":null,"affected_components":null,"status_page_id":null)"),
        maintenanceDecodedWith(""));
}

TEST(Maintenance, IsNotReadFromTheNamesOfItsFieldsWhereItsKeysDiffer)
{
    EXPECT_EQ(maintenanceDecodedWith(R"("scheduled_for":"n/a","completed_at":1,"component_ids":["c1"])"),
        maintenanceDecodedWith(""));
}

TEST(Maintenance, DataNullIsADecodingErrorForOneAndAnEmptyListForMany)
{
    EXPECT_EQ(failureOf<Maintenance>(R"({"data":null})"), valueNotFound("data", "an object"));
    EXPECT_EQ(decoded<std::vector<Maintenance>>(R"({"data":null})"), std::vector<Maintenance>{});
}

TEST(Maintenance, ThatIsBadFailsItsWholeList)
{
    EXPECT_EQ(failureOf<std::vector<Maintenance>>("{\"data\":[" + maintenanceWith("") + R"(,{"id":"m2"}]})"),
        keyNotFound("data[1].title"));
}

struct RequiredRow {
    std::string maintenance;
    DecodingFailure failure;
};

void PrintTo(const RequiredRow& row, std::ostream* out)
{
    *out << row.maintenance;
}

class MaintenanceRequiredKey : public testing::TestWithParam<RequiredRow> {};

TEST_P(MaintenanceRequiredKey, FailsWhenMissingNullOrOfAnotherType)
{
    EXPECT_EQ(failureOf<Maintenance>("{\"data\":" + GetParam().maintenance + '}'), GetParam().failure);
}

INSTANTIATE_TEST_SUITE_P(Each, MaintenanceRequiredKey,
    testing::Values(RequiredRow{R"({"title":"Upgrade"})", keyNotFound("data.id")},
        RequiredRow{R"({"id":null})", valueNotFound("data.id", "a string")},
        RequiredRow{R"({"id":4.5})", typeMismatch("data.id", "a string", "a number")},
        RequiredRow{R"({"id":18446744073709551615})", typeMismatch("data.id", "a string", "a number")},
        RequiredRow{R"({"id":true})", typeMismatch("data.id", "a string", "a boolean")},
        RequiredRow{R"({"id":"m1"})", keyNotFound("data.title")},
        RequiredRow{R"({"id":"m1","title":null})", valueNotFound("data.title", "a string")},
        RequiredRow{R"({"id":"m1","title":1})", typeMismatch("data.title", "a string", "a number")}));

class MaintenanceOptionalKey : public testing::TestWithParam<std::string> {};

TEST_P(MaintenanceOptionalKey, FailsWithANumberInIt)
{
    EXPECT_EQ(failureWith('"' + GetParam() + "\":4"), typeMismatch("data." + GetParam(), "a string", "a number"));
}

INSTANTIATE_TEST_SUITE_P(Each, MaintenanceOptionalKey,
    testing::Values("message", "start_at", "started_at", "end_at", "created_at", "updated_at", "affected_components",
        "status_page_id", "status"));

class MaintenanceDate : public testing::TestWithParam<std::string> {};

TEST_P(MaintenanceDate, OfNeitherFormFailsTheRecord)
{
    EXPECT_EQ(
        failureWith('"' + GetParam() + "\":\"n/a\""), dataCorrupted("data." + GetParam(), "Cannot decode date: n/a"));
}

INSTANTIATE_TEST_SUITE_P(
    Each, MaintenanceDate, testing::Values("start_at", "started_at", "end_at", "created_at", "updated_at"));

TEST(Maintenance, KeepsAnIntegerIdAsItsDecimalText)
{
    EXPECT_EQ(decoded<Maintenance>(R"({"id":42,"title":"U"})").id, "42");
    EXPECT_EQ(decoded<Maintenance>(R"({"id":-7,"title":"U"})").id, "-7");
    EXPECT_EQ(decoded<Maintenance>(R"({"id":9223372036854775807,"title":"U"})").id, "9223372036854775807");
    EXPECT_EQ(decoded<Maintenance>(R"({"id":42.0,"title":"U"})").id, "42");
    EXPECT_EQ(decoded<Maintenance>(R"({"id":"042","title":"U"})").id, "042");
}

TEST(Maintenance, WithOnlyStatusInProgressAndNoDatesIsInProgressAndWithNeitherScheduled)
{
    EXPECT_EQ(maintenanceDecodedWith(R"("status":"in_progress")").status, "in_progress");
    EXPECT_EQ(maintenanceDecodedWith("").status, "scheduled");
}

TEST(Maintenance, WithStartInTheFutureAndStatusCompletedIsScheduled)
{
    EXPECT_EQ(maintenanceDecodedWith("\"status\":\"completed\",\"start_at\":" + after).status, "scheduled");
}

TEST(Maintenance, WithStartInThePastAndNoEndIsInProgressAndWithOnlyStartedAtTheSame)
{
    EXPECT_EQ(maintenanceDecodedWith("\"start_at\":" + before).status, "in_progress");
    EXPECT_EQ(maintenanceDecodedWith("\"started_at\":" + before).status, "in_progress");
}

TEST(Maintenance, WithEndInThePastAndStartInTheFutureIsCompletedSinceThatComesFirst)
{
    EXPECT_EQ(maintenanceDecodedWith("\"end_at\":" + before + ",\"start_at\":" + after).status, "completed");
}

struct StatusRow {
    std::string startAt;
    std::string startedAt;
    std::string endAt;
    std::string wireStatus;
    std::string status;
};

void PrintTo(const StatusRow& row, std::ostream* out)
{
    *out << row.startAt << ", " << row.startedAt << ", " << row.endAt << ", " << row.wireStatus;
}

class StatusOfAMaintenance : public testing::TestWithParam<StatusRow> {};

TEST_P(StatusOfAMaintenance, IsDecidedByItsDatesAndTheMomentOfDecoding)
{
    const auto& [startAt, startedAt, endAt, wireStatus, status] = GetParam();
    EXPECT_EQ(maintenanceDecodedWith("\"start_at\":" + startAt + ",\"started_at\":" + startedAt + ",\"end_at\":" + endAt
                  + ",\"status\":" + wireStatus)
                  .status,
        status);
}

const std::string none = "null";
const std::string wire = "\"Paused\"";

INSTANTIATE_TEST_SUITE_P(ThatIsOver, StatusOfAMaintenance,
    testing::Values(StatusRow{none, none, before, wire, "completed"},
        StatusRow{before, none, before, wire, "completed"}, StatusRow{none, before, before, wire, "completed"},
        StatusRow{atNow, none, before, wire, "completed"}, StatusRow{after, after, before, none, "completed"}));

INSTANTIATE_TEST_SUITE_P(WithoutAStart, StatusOfAMaintenance,
    testing::Values(StatusRow{none, none, none, wire, "Paused"}, StatusRow{none, none, atNow, wire, "Paused"},
        StatusRow{none, none, after, wire, "Paused"}, StatusRow{none, none, after, none, "scheduled"},
        StatusRow{none, none, none, "\"\"", ""}));

INSTANTIATE_TEST_SUITE_P(ThatStartsLater, StatusOfAMaintenance,
    testing::Values(StatusRow{after, none, none, wire, "scheduled"}, StatusRow{none, after, none, wire, "scheduled"},
        StatusRow{after, before, none, wire, "scheduled"}, StatusRow{after, none, atNow, wire, "scheduled"},
        StatusRow{after, none, longAfter, wire, "scheduled"}));

INSTANTIATE_TEST_SUITE_P(ThatHasStarted, StatusOfAMaintenance,
    testing::Values(StatusRow{before, none, none, wire, "in_progress"},
        StatusRow{atNow, none, none, wire, "in_progress"}, StatusRow{none, atNow, none, wire, "in_progress"},
        StatusRow{before, none, after, wire, "in_progress"}, StatusRow{before, after, after, wire, "in_progress"},
        StatusRow{atNow, none, after, wire, "in_progress"}));

INSTANTIATE_TEST_SUITE_P(ThatEndsAtThisMoment, StatusOfAMaintenance,
    testing::Values(StatusRow{before, none, atNow, wire, "completed"}, StatusRow{atNow, none, atNow, wire, "completed"},
        StatusRow{none, before, atNow, wire, "completed"}));

TEST(Maintenance, OfTheSameBodyDecodedLaterHasAnotherStatus)
{
    const auto body = maintenanceWith("\"start_at\":" + atNow + ",\"end_at\":" + longAfter);
    EXPECT_EQ(decoded<Maintenance>(body, now - 1ms).status, "scheduled");
    EXPECT_EQ(decoded<Maintenance>(body, now).status, "in_progress");
    EXPECT_EQ(decoded<Maintenance>(body, now + 24h + 1ms).status, "completed");
}

TEST(Maintenance, ReadsItsWireStatusOnlyWhereTheDatesCannotDecide)
{
    EXPECT_EQ(maintenanceDecodedWith("\"status\":4,\"start_at\":" + before).status, "in_progress");
    EXPECT_EQ(maintenanceDecodedWith("\"status\":{},\"end_at\":" + before).status, "completed");
    EXPECT_EQ(failureWith(R"("status":{})"), typeMismatch("data.status", "a string", "an object"));
}

struct ComponentsRow {
    std::string text;
    std::optional<std::vector<std::string>> ids;
};

void PrintTo(const ComponentsRow& row, std::ostream* out)
{
    *out << '"' << row.text << '"';
}

class AffectedComponents : public testing::TestWithParam<ComponentsRow> {};

TEST_P(AffectedComponents, AreSplitAtCommasWithEmptyPiecesDropped)
{
    EXPECT_EQ(
        maintenanceDecodedWith(R"("affected_components":")" + GetParam().text + '"').componentIds, GetParam().ids);
}

using Ids = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(EachForm, AffectedComponents,
    testing::Values(ComponentsRow{"", std::nullopt}, ComponentsRow{"1", Ids{"1"}},
        ComponentsRow{"1,2,,3", Ids{"1", "2", "3"}}, ComponentsRow{"a, b", Ids{"a", " b"}},
        ComponentsRow{",a,", Ids{"a"}}, ComponentsRow{",", Ids{}}, ComponentsRow{",,,", Ids{}},
        ComponentsRow{" ", Ids{" "}}, ComponentsRow{"a;b", Ids{"a;b"}}));

TEST(Maintenance, FailsWithAListOfAffectedComponents)
{
    EXPECT_EQ(
        failureWith(R"("affected_components":["c1"])"), typeMismatch("data.affected_components", "a string", "a list"));
}

}  // namespace

}  // namespace larkspan::model
