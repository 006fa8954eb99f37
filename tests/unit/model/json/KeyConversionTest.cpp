#include "model/json/KeyConversion.h"

#include <gtest/gtest.h>

namespace larkspan::model {

namespace {

struct KeyRow {
    std::string from;
    std::string to;
};

void PrintTo(const KeyRow& row, std::ostream* out)
{
    *out << row.from;
}

class WireKey : public testing::TestWithParam<KeyRow> {};

TEST_P(WireKey, StandsForTheKeyName)
{
    std::string buffer = "left over from the key before";
    EXPECT_EQ(fromSnakeCase(GetParam().from, buffer), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(OfOneWordStaysAsItIs, WireKey,
    testing::Values(KeyRow{"id", "id"}, KeyRow{"createdAt", "createdAt"}, KeyRow{"1h", "1h"}, KeyRow{"URL", "URL"},
        KeyRow{"", ""}, KeyRow{"_Id", "_Id"}, KeyRow{"Id__", "Id__"}));

INSTANTIATE_TEST_SUITE_P(OfSeveralWordsIsJoinedAtCapitals, WireKey,
    testing::Values(KeyRow{"created_at", "createdAt"}, KeyRow{"status_page_id", "statusPageId"},
        KeyRow{"CREATED_AT", "createdAt"}, KeyRow{"Created_aT", "createdAt"}, KeyRow{"avg_1h", "avg1h"},
        KeyRow{"createdAt_utc", "createdatUtc"}, KeyRow{"created__at", "createdAt"}, KeyRow{"ä_Äb", "äÄb"}));

INSTANTIATE_TEST_SUITE_P(KeepsUnderscoresAtItsEnds, WireKey,
    testing::Values(KeyRow{"_created_at", "_createdAt"}, KeyRow{"created_at_", "createdAt_"},
        KeyRow{"__created_at___", "__createdAt___"}, KeyRow{"_", "_"}, KeyRow{"___", "___"}));

class KeyName : public testing::TestWithParam<KeyRow> {};

TEST_P(KeyName, IsWrittenInSnakeCase)
{
    EXPECT_EQ(toSnakeCase(GetParam().from), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(OfARequest, KeyName,
    testing::Values(KeyRow{"title", "title"}, KeyRow{"statusPageId", "status_page_id"},
        KeyRow{"notifySubscribers", "notify_subscribers"}, KeyRow{"affectedMonitorIds", "affected_monitor_ids"},
        KeyRow{"", ""}));

INSTANTIATE_TEST_SUITE_P(BreaksOnlyBetweenASmallLetterAndACapital, KeyName,
    testing::Values(KeyRow{"pageURL", "page_url"}, KeyRow{"Id", "id"}, KeyRow{"avg1H", "avg1h"}, KeyRow{"a_B", "a_b"}));

TEST(KeyConversion, TurnsEveryKeyNameWrittenBackIntoItself)
{
    std::string buffer;
    for (const std::string name : {"id", "statusPages", "createdAt", "affectedMonitorIds", "componentGroupId"}) {
        EXPECT_EQ(fromSnakeCase(toSnakeCase(name), buffer), name);
    }
}

TEST(KeyConversion, AKeyNameWithAnUnderscoreIsMetByNoWireKey)
{
    std::string buffer;
    EXPECT_NE(fromSnakeCase("component_id", buffer), "component_id");
}

}  // namespace

}  // namespace larkspan::model
