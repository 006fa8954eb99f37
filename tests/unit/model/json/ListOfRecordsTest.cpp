#include <gtest/gtest.h>

#include "model/json/Decoded.h"
#include "model/records/StatusPage.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

using Pages = std::vector<StatusPage>;

constexpr support::Time first = std::chrono::sys_days{2026y / 3 / 1};
constexpr support::Time second = std::chrono::sys_days{2026y / 3 / 2};

TEST(ListOfRecords, ReadsEachObjectWhateverKeysTheOnesBeforeItHad)
{
    EXPECT_EQ(decoded<Pages>(R"([
            {"id": "1", "name": "A", "slug": "a", "created_at": "2026-03-01T00:00:00Z"},
            {"name": "B", "id": "2"},
            {"created_at": "2026-03-02T00:00:00Z", "further": {"id": 7}, "slug": "c", "name": "C", "id": "3"},
            {"id": "4", "name": "D", "createdAt": "2026-03-01T00:00:00Z", "slug": null}])"),
        (Pages{{.id = "1", .name = "A", .slug = "a", .createdAt = first}, {.id = "2", .name = "B"},
            {.id = "3", .name = "C", .slug = "c", .createdAt = second}, {.id = "4", .name = "D", .createdAt = first}}));
}

TEST(ListOfRecords, TakesTheFirstOfKeysThatConvertAlikeInEachObject)
{
    const auto pages = decoded<Pages>(R"([
        {"id": "1", "name": "A", "created_at": "2026-03-01T00:00:00Z", "createdAt": "2026-03-02T00:00:00Z"},
        {"id": "2", "name": "B", "createdAt": "2026-03-02T00:00:00Z", "created_at": "2026-03-01T00:00:00Z"},
        {"id": "3", "name": "C", "created_at": null, "createdAt": "2026-03-02T00:00:00Z"}])");
    EXPECT_EQ(pages.at(0).createdAt, first);
    EXPECT_EQ(pages.at(1).createdAt, second);
    EXPECT_EQ(pages.at(2).createdAt, std::nullopt);
}

TEST(ListOfRecords, NamesTheKeyThatALaterObjectLacks)
{
    EXPECT_EQ(failureOf<Pages>(R"({"data": [{"id": "1", "name": "A"}, {"id": "2"}]})"), keyNotFound("data[1].name"));
}

TEST(ListOfRecords, ReadsObjectsOfHundredsOfKeysInAnyOrder)
{
    std::string keys;
    std::string keysBackwards;
    for (int number = 0; number < 300; ++number) {
        const auto key = "\"some_key_" + std::to_string(number) + "\": 1";
        keys += key + ", ";
        keysBackwards.insert(0, ", " + key);
    }
    const auto body = "[{" + keys + R"("id": "1", "name": "A"}, {"name": "B", "id": "2")" + keysBackwards + "}, {"
        + keys + R"("name": "C", "id": "3"}])";
    EXPECT_EQ(
        decoded<Pages>(body), (Pages{{.id = "1", .name = "A"}, {.id = "2", .name = "B"}, {.id = "3", .name = "C"}}));
}

}  // namespace

}  // namespace larkspan::model
