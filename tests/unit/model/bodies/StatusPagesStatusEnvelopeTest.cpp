#include "model/bodies/StatusPagesStatusEnvelope.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using Envelope = StatusPagesStatusEnvelope;

DecodingFailure failureOfEntry(const std::string& entry)
{
    return failureOf<Envelope>(R"({"data":{"status_pages":[)" + entry + "]}}");
}

TEST(StatusPagesStatusEnvelope, ReadsEveryRowInItsOrderInBothShapes)
{
    const std::string envelope = R"({"status_pages":[
        {"id":"p2","name":"B","status":{"code":"major-outage","label":"Major outage"}},
        {"id":"p1","name":"A","status":{"code":"operational","label":"All fine"}}]})";
    const Envelope expected{.statusPages = {
                                {.id = "p2", .name = "B", .status = {.code = "major-outage", .label = "Major outage"}},
                                {.id = "p1", .name = "A", .status = {.code = "operational", .label = "All fine"}},
                            }};

    EXPECT_EQ(decoded<Envelope>(envelope), expected);
    EXPECT_EQ(decoded<Envelope>("{\"data\":" + envelope + '}'), expected);
}

TEST(StatusPagesStatusEnvelope, TakesTheKeyNameAsAWireKey)
{
    EXPECT_EQ(decoded<Envelope>(R"({"statusPages":[]})"), Envelope{});
}

TEST(StatusPagesStatusEnvelope, FailsWithoutItsListEvenWithDataNull)
{
    EXPECT_EQ(failureOf<Envelope>(R"({"data":{}})"), keyNotFound("data.status_pages"));
    EXPECT_EQ(failureOf<Envelope>(R"({"data":{"status_pages":null}})"), valueNotFound("data.status_pages", "a list"));
    EXPECT_EQ(failureOf<Envelope>(R"({"data":{"status_pages":{}}})"),
        typeMismatch("data.status_pages", "a list", "an object"));
    EXPECT_EQ(failureOf<Envelope>(R"({"data":null})"), valueNotFound("data", "an object"));
}

struct EntryRow {
    std::string entry;
    DecodingFailure failure;
};

void PrintTo(const EntryRow& row, std::ostream* out)
{
    *out << row.entry;
}

class PageStatusEntryKey : public testing::TestWithParam<EntryRow> {};

TEST_P(PageStatusEntryKey, FailsTheEnvelopeWhenMissingNullOrOfAnotherType)
{
    EXPECT_EQ(failureOfEntry(GetParam().entry), GetParam().failure);
}

INSTANTIATE_TEST_SUITE_P(Each, PageStatusEntryKey,
    testing::Values(
        EntryRow{R"({"name":"A","status":{"code":"x","label":"X"}})", keyNotFound("data.status_pages[0].id")},
        EntryRow{R"({"id":null,"name":"A"})", valueNotFound("data.status_pages[0].id", "a string")},
        EntryRow{R"({"id":1,"name":"A"})", typeMismatch("data.status_pages[0].id", "a string", "a number")},
        EntryRow{R"({"id":"p","status":{"code":"x","label":"X"}})", keyNotFound("data.status_pages[0].name")},
        EntryRow{R"({"id":"p","name":null})", valueNotFound("data.status_pages[0].name", "a string")},
        EntryRow{R"({"id":"p","name":{}})", typeMismatch("data.status_pages[0].name", "a string", "an object")},
        EntryRow{R"({"id":"p","name":"A"})", keyNotFound("data.status_pages[0].status")},
        EntryRow{R"({"id":"p","name":"A","status":null})", valueNotFound("data.status_pages[0].status", "an object")},
        EntryRow{R"({"id":"p","name":"A","status":"down"})",
            typeMismatch("data.status_pages[0].status", "an object", "a string")},
        EntryRow{R"({"id":"p","name":"A","status":{"label":"X"}})", keyNotFound("data.status_pages[0].status.code")},
        EntryRow{R"({"id":"p","name":"A","status":{"code":null}})",
            valueNotFound("data.status_pages[0].status.code", "a string")},
        EntryRow{R"({"id":"p","name":"A","status":{"code":4}})",
            typeMismatch("data.status_pages[0].status.code", "a string", "a number")},
        EntryRow{R"({"id":"p","name":"A","status":{"code":"x"}})", keyNotFound("data.status_pages[0].status.label")},
        EntryRow{R"({"id":"p","name":"A","status":{"code":"x","label":null}})",
            valueNotFound("data.status_pages[0].status.label", "a string")},
        EntryRow{R"({"id":"p","name":"A","status":{"code":"x","label":false}})",
            typeMismatch("data.status_pages[0].status.label", "a string", "a boolean")}));

}  // namespace

}  // namespace larkspan::model
