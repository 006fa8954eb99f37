#include "model/records/IncidentState.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using Envelope = IncidentStatesEnvelope;

TEST(IncidentStatesEnvelope, ReadsEveryStateInItsOrderInBothShapes)
{
    const std::string body = R"({"incident_states":[
        {"id":4,"stage":"Resolved","sort_order":9},{"id":1,"stage":"Open","sort_order":0}]})";
    const Envelope expected{
        .incidentStates = {{.id = 4, .stage = "Resolved", .sortOrder = 9}, {.id = 1, .stage = "Open", .sortOrder = 0}}};

    EXPECT_EQ(decoded<Envelope>(body), expected);
    EXPECT_EQ(decoded<Envelope>("{\"data\":" + body + '}'), expected);
}

TEST(IncidentStatesEnvelope, FailsWithoutItsList)
{
    EXPECT_EQ(failureOf<Envelope>(R"({"data":{}})"), keyNotFound("data.incident_states"));
    EXPECT_EQ(
        failureOf<Envelope>(R"({"data":{"incident_states":null}})"), valueNotFound("data.incident_states", "a list"));
    EXPECT_EQ(failureOf<Envelope>(R"({"data":{"incident_states":"x"}})"),
        typeMismatch("data.incident_states", "a list", "a string"));
    EXPECT_EQ(failureOf<Envelope>(R"({"data":null})"), valueNotFound("data", "an object"));
}

struct StateRow {
    std::string state;
    DecodingFailure failure;
};

void PrintTo(const StateRow& row, std::ostream* out)
{
    *out << row.state;
}

class IncidentStateKey : public testing::TestWithParam<StateRow> {};

TEST_P(IncidentStateKey, FailsTheEnvelopeWhenMissingNullOrOfAnotherType)
{
    EXPECT_EQ(failureOf<Envelope>(R"({"data":{"incident_states":[)" + GetParam().state + "]}}"), GetParam().failure);
}

INSTANTIATE_TEST_SUITE_P(Each, IncidentStateKey,
    testing::Values(StateRow{R"({"stage":"Open","sort_order":1})", keyNotFound("data.incident_states[0].id")},
        StateRow{R"({"id":null})", valueNotFound("data.incident_states[0].id", "an integer")},
        StateRow{R"({"id":"4"})", typeMismatch("data.incident_states[0].id", "an integer", "a string")},
        StateRow{R"({"id":4.5})", dataCorrupted("data.incident_states[0].id", "Not a 64-bit integer: 4.5")},
        StateRow{R"({"id":1,"sort_order":1})", keyNotFound("data.incident_states[0].stage")},
        StateRow{R"({"id":1,"stage":null})", valueNotFound("data.incident_states[0].stage", "a string")},
        StateRow{R"({"id":1,"stage":2})", typeMismatch("data.incident_states[0].stage", "a string", "a number")},
        StateRow{R"({"id":1,"stage":"Open"})", keyNotFound("data.incident_states[0].sort_order")},
        StateRow{R"({"id":1,"stage":"Open","sort_order":null})",
            valueNotFound("data.incident_states[0].sort_order", "an integer")},
        StateRow{R"({"id":1,"stage":"Open","sortOrder":"1"})",
            typeMismatch("data.incident_states[0].sortOrder", "an integer", "a string")}));

}  // namespace

}  // namespace larkspan::model
