#include "model/records/Monitor.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

using Monitors = std::vector<Monitor>;

/// A list of one monitor with the required keys and `more`.
std::string monitorWith(const std::string& more)
{
    return R"([{"id":"m1","name":"Health")" + (more.empty() ? more : ',' + more) + "}]";
}

Monitor monitorDecodedWith(const std::string& more)
{
    return decoded<Monitors>(monitorWith(more)).at(0);
}

DecodingFailure failureWith(const std::string& more)
{
    return failureOf<Monitors>("{\"data\":" + monitorWith(more) + '}');
}

TEST(Monitor, ReadsEveryFieldInBothShapes)
{
    const auto body = monitorWith(R"("type":"smtp","target":"mail.example:25","enabled":true,"state":"degraded",
        "updated_at":"2026-03-01T09:30:00Z","interval_seconds":300,"status_page_id":"p1")");
    const Monitors expected{{.id = "m1",
        .type = MonitorType::smtp,
        .name = "Health",
        .url = "mail.example:25",
        .status = MonitorStatus::degraded,
        .configUpdatedAt = std::chrono::sys_days{2026y / 3 / 1} + 9h + 30min,
        .intervalSeconds = 300,
        .statusPageId = "p1"}};

    EXPECT_EQ(decoded<Monitors>(body), expected);
    EXPECT_EQ(decoded<Monitors>("{\"data\":" + body + '}'), expected);
}

TEST(Monitor, WithOnlyItsRequiredKeysIsCustomOfUnknownStatusAndNotPaused)
{
    EXPECT_EQ(monitorDecodedWith(""),
        (Monitor{.id = "m1", .type = MonitorType::custom, .name = "Health", .status = MonitorStatus::unknown}));
}

TEST(Monitor, TakesNullInAnyOptionalKeyForAMissingOne)
{
    EXPECT_EQ(monitorDecodedWith(R"("type":null,"target":null,"enabled":null,"state":null,"updated_at":null,
        "interval_seconds":null,"status_page_id":null)"),
        monitorDecodedWith(""));
}

TEST(Monitor, IsNotReadFromKeysThatAreNotItsOwn)
{
    EXPECT_EQ(monitorDecodedWith(R"("url":1,"status":"down","is_paused":true,"last_check_time":"2026-03-01T09:30:00Z",
        "created_at":7,"config_updated_at":7)"),
        monitorDecodedWith(""));
}

TEST(Monitor, HasTheSameIdFromAnIntegerAndFromItsText)
{
    EXPECT_EQ(
        decoded<Monitors>(R"([{"id":42,"name":"Health"}])"), decoded<Monitors>(R"([{"id":"42","name":"Health"}])"));
    EXPECT_EQ(decoded<Monitors>(R"([{"id":42,"name":"Health"}])").at(0).id, "42");
}

TEST(Monitor, WithAFractionAsItsIdFails)
{
    EXPECT_EQ(failureOf<Monitors>(R"({"data":[{"id":4.5,"name":"Health"}]})"),
        typeMismatch("data[0].id", "a string", "a number"));
}

TEST(Monitor, OfATypeOutsideTheTableFailsTheList)
{
    EXPECT_EQ(failureWith(R"("type":"ping")"), dataCorrupted("data[0].type", "Unknown word: ping"));
    EXPECT_EQ(failureWith(R"("type":"HTTP")"), dataCorrupted("data[0].type", "Unknown word: HTTP"));
    EXPECT_EQ(failureWith(R"("type":7)"), typeMismatch("data[0].type", "a string", "a number"));
}

struct TypeRow {
    std::string word;
    MonitorType type;
};

class TypeOfAMonitor : public testing::TestWithParam<TypeRow> {};

TEST_P(TypeOfAMonitor, IsItsRawTextInBothDirections)
{
    EXPECT_EQ(monitorDecodedWith("\"type\":\"" + GetParam().word + '"').type, GetParam().type);
    EXPECT_EQ(rawText(GetParam().type), GetParam().word);
}

INSTANTIATE_TEST_SUITE_P(Each, TypeOfAMonitor,
    testing::Values(TypeRow{"http", MonitorType::http}, TypeRow{"tcp", MonitorType::tcp},
        TypeRow{"dns", MonitorType::dns}, TypeRow{"smtp", MonitorType::smtp}, TypeRow{"custom", MonitorType::custom},
        TypeRow{"api", MonitorType::api}, TypeRow{"site", MonitorType::site}));

struct MonitorStatusRow {
    std::string keys;
    MonitorStatus status;
    bool isPaused;
};

void PrintTo(const MonitorStatusRow& row, std::ostream* out)
{
    *out << row.keys;
}

class StatusOfAMonitor : public testing::TestWithParam<MonitorStatusRow> {};

TEST_P(StatusOfAMonitor, ComesFromWhetherItIsEnabledAndFromItsStateInAnyCaseOfLetters)
{
    const auto monitor = monitorDecodedWith(GetParam().keys);
    EXPECT_EQ(monitor.status, GetParam().status);
    EXPECT_EQ(monitor.isPaused, GetParam().isPaused);
}

INSTANTIATE_TEST_SUITE_P(Each, StatusOfAMonitor,
    testing::Values(MonitorStatusRow{R"("enabled":false,"state":"down")", MonitorStatus::paused, true},
        MonitorStatusRow{R"("enabled":false)", MonitorStatus::paused, true},
        MonitorStatusRow{R"("enabled":true,"state":"paused")", MonitorStatus::paused, false},
        MonitorStatusRow{R"("state":"UP")", MonitorStatus::operational, false},
        MonitorStatusRow{R"("enabled":true)", MonitorStatus::unknown, false},
        MonitorStatusRow{R"("enabled":null,"state":"Operational")", MonitorStatus::operational, false},
        MonitorStatusRow{R"("state":"down")", MonitorStatus::down, false},
        MonitorStatusRow{R"("state":"degraded")", MonitorStatus::degraded, false},
        MonitorStatusRow{R"("state":"Partial")", MonitorStatus::degraded, false},
        MonitorStatusRow{R"("state":"partial-outage")", MonitorStatus::degraded, false},
        MonitorStatusRow{R"("state":"partial_outage")", MonitorStatus::unknown, false},
        MonitorStatusRow{R"("state":" up")", MonitorStatus::unknown, false},
        MonitorStatusRow{R"("state":"")", MonitorStatus::unknown, false},
        MonitorStatusRow{R"("state":"unknown")", MonitorStatus::unknown, false}));

TEST(Monitor, ThatIsDisabledMayHoldAnythingAsItsState)
{
    EXPECT_EQ(monitorDecodedWith(R"("enabled":false,"state":7)").status, MonitorStatus::paused);
    EXPECT_EQ(failureWith(R"("enabled":true,"state":7)"), typeMismatch("data[0].state", "a string", "a number"));
}

TEST(Monitor, StatusesHaveTheirRawTexts)
{
    EXPECT_EQ(rawText(MonitorStatus::operational), "operational");
    EXPECT_EQ(rawText(MonitorStatus::degraded), "degraded");
    EXPECT_EQ(rawText(MonitorStatus::down), "down");
    EXPECT_EQ(rawText(MonitorStatus::paused), "paused");
    EXPECT_EQ(rawText(MonitorStatus::unknown), "unknown");
}

TEST(Monitor, FailsWithAnythingElseInAKeyOfOneType)
{
    EXPECT_EQ(failureOf<Monitors>(R"({"data":[{"name":"Health"}]})"), keyNotFound("data[0].id"));
    EXPECT_EQ(failureOf<Monitors>(R"({"data":[{"id":1}]})"), keyNotFound("data[0].name"));
    EXPECT_EQ(failureWith(R"("target":1)"), typeMismatch("data[0].target", "a string", "a number"));
    EXPECT_EQ(failureWith(R"("enabled":"yes")"), typeMismatch("data[0].enabled", "a boolean", "a string"));
    EXPECT_EQ(failureWith(R"("enabled":0)"), typeMismatch("data[0].enabled", "a boolean", "a number"));
    EXPECT_EQ(failureWith(R"("updated_at":"n/a")"), dataCorrupted("data[0].updated_at", "Cannot decode date: n/a"));
    EXPECT_EQ(
        failureWith(R"("interval_seconds":"60")"), typeMismatch("data[0].interval_seconds", "an integer", "a string"));
    EXPECT_EQ(failureWith(R"("status_page_id":1)"), typeMismatch("data[0].status_page_id", "a string", "a number"));
}

}  // namespace

}  // namespace larkspan::model
