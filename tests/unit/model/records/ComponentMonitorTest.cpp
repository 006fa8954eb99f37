#include "model/records/ComponentMonitor.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

std::vector<ComponentMonitor> monitorsIn(std::string_view body)
{
    return decodedBare<ComponentMonitorsResponse>(body).monitors;
}

TEST(ComponentMonitor, ReadsEveryFieldAndAnIntegerAsItsId)
{
    const ComponentMonitor expected{
        .id = "9007199254740993", .name = "Health", .target = "https://a.example", .componentId = "c1"};
    EXPECT_EQ(monitorsIn(R"({"monitors": [{"id": 9007199254740993, "name": "Health", "target": "https://a.example",
        "component_id": "c1"}]})"),
        std::vector{expected});
}

TEST(ComponentMonitor, NeedsNoTarget)
{
    EXPECT_EQ(
        monitorsIn(R"({"monitors": [{"id": "m", "name": "H", "component_id": "c"}]})").at(0).target, std::nullopt);
    EXPECT_EQ(
        monitorsIn(R"({"monitors": [{"id": "m", "name": "H", "target": null, "component_id": "c"}]})").at(0).target,
        std::nullopt);
}

struct ComponentMonitorRow {
    std::string monitor;
    DecodingFailure failure;
};

void PrintTo(const ComponentMonitorRow& row, std::ostream* out)
{
    *out << row.monitor;
}

class ComponentMonitorKey : public testing::TestWithParam<ComponentMonitorRow> {};

TEST_P(ComponentMonitorKey, FailsTheWholeListWhenItIsWrong)
{
    EXPECT_EQ(
        failureOfBare<ComponentMonitorsResponse>(R"({"monitors": [)" + GetParam().monitor + "]}"), GetParam().failure);
}

INSTANTIATE_TEST_SUITE_P(Each, ComponentMonitorKey,
    testing::Values(ComponentMonitorRow{R"({"name":"H","component_id":"c"})", keyNotFound("monitors[0].id")},
        ComponentMonitorRow{R"({"id":null})", valueNotFound("monitors[0].id", "a string")},
        ComponentMonitorRow{R"({"id":4.5})", typeMismatch("monitors[0].id", "a string", "a number")},
        ComponentMonitorRow{R"({"id":1,"component_id":"c"})", keyNotFound("monitors[0].name")},
        ComponentMonitorRow{R"({"id":1,"name":2})", typeMismatch("monitors[0].name", "a string", "a number")},
        ComponentMonitorRow{
            R"({"id":1,"name":"H","target":2})", typeMismatch("monitors[0].target", "a string", "a number")},
        ComponentMonitorRow{R"({"id":1,"name":"H"})", keyNotFound("monitors[0].component_id")},
        ComponentMonitorRow{
            R"({"id":1,"name":"H","component_id":null})", valueNotFound("monitors[0].component_id", "a string")},
        ComponentMonitorRow{R"({"id":1,"name":"H","component_id":7})",
            typeMismatch("monitors[0].component_id", "a string", "a number")}));

TEST(ComponentMonitorsResponse, ComesInNoOtherShape)
{
    EXPECT_EQ(failureOfBare<ComponentMonitorsResponse>(R"({"data": {"monitors": []}})"), keyNotFound("monitors"));
    EXPECT_EQ(failureOfBare<ComponentMonitorsResponse>(R"({"monitors": null})"), valueNotFound("monitors", "a list"));
    EXPECT_EQ(failureOfBare<ComponentMonitorsResponse>("[]").kind, DecodingError::Kind::typeMismatch);
    EXPECT_EQ(failureOfBare<ComponentMonitorsResponse>("").kind, DecodingError::Kind::dataCorrupted);
}

}  // namespace

}  // namespace larkspan::model
