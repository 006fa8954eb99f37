#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "Samples.h"
#include "account/Seed.h"
#include "account/Storyline.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

struct SeedSizeRow {
    std::string_view name;
    std::optional<std::size_t> size;
};

class SeedSize : public testing::TestWithParam<SeedSizeRow> {};

TEST_P(SeedSize, IsANameOrANumber)
{
    EXPECT_EQ(seedSize(GetParam().name), GetParam().size);
}

INSTANTIATE_TEST_SUITE_P(EachName, SeedSize,
    testing::Values(SeedSizeRow{"empty", 0}, SeedSizeRow{"tiny", 3}, SeedSizeRow{"small", 12},
        SeedSizeRow{"large", 1'000}, SeedSizeRow{"10000", 10'000}, SeedSizeRow{"0", 0},
        SeedSizeRow{"100001", std::nullopt}, SeedSizeRow{"-1", std::nullopt}, SeedSizeRow{"12 pages", std::nullopt},
        SeedSizeRow{"", std::nullopt}));

TEST(SeededPages, OfTenThousandHaveEachIdAndEachNameOnce)
{
    const auto pages = seededPages(10'000);

    std::set<std::string> ids;
    std::set<std::string> names;
    for (const auto& page : pages) {
        ids.insert(page.id);
        names.insert(page.name);
    }
    EXPECT_EQ(ids.size(), 10'000u);
    EXPECT_EQ(names.size(), 10'000u);
}

TEST(SeededPages, OfASmallAccountShowEachHealth)
{
    std::set<std::string> codes;
    for (const auto& page : seededPages(12)) codes.insert(page.overview->code);

    EXPECT_THAT(codes, testing::UnorderedElementsAre("operational", "degraded", "major-outage", "maintenance"));
}

class Story : public testing::Test {
protected:
    std::string codeOf(std::string_view id) { return account_.findPage(id)->overview->code; }

    const support::Time now_{std::chrono::sys_days(std::chrono::year(2026) / 5 / 1)};
    Account account_ = samples::account();
    Storyline story_{{{10s, "page-2", PageHealth::degraded}, {20s, "page-2", PageHealth::majorOutage}}, 30s};
};

TEST_F(Story, TellsNothingBeforeItsTime)
{
    story_.tellUpTo(9'999ms, now_, account_);

    EXPECT_EQ(codeOf("page-2"), "operational");
}

TEST_F(Story, TellsAllThatIsDueInOrderAndStampsThePage)
{
    story_.tellUpTo(25s, now_, account_);

    EXPECT_EQ(codeOf("page-2"), "major-outage");
    EXPECT_EQ(account_.findPage("page-2")->updatedAt, now_ - 5s);
    EXPECT_EQ(codeOf("page-1"), "operational");
}

TEST_F(Story, StartsAgainWhenItsPeriodIsOver)
{
    story_.tellUpTo(39s, now_, account_);
    EXPECT_EQ(codeOf("page-2"), "major-outage");

    story_.tellUpTo(40s, now_, account_);
    EXPECT_EQ(codeOf("page-2"), "degraded");
}

TEST_F(Story, OfAPageThatIsGoneChangesNothing)
{
    account_.statusPages.erase(account_.statusPages.begin() + 1);

    story_.tellUpTo(25s, now_, account_);

    EXPECT_EQ(codeOf("page-1"), "operational");
    EXPECT_EQ(codeOf("page-3"), "operational");
}

TEST_F(Story, OfAnOrdinaryDayLooksDifferentAtEachOfItsFirstMinutes)
{
    auto day = Storyline::ordinaryDay();
    std::vector<std::string> seen;
    for (const auto at : {0min, 1min, 2min, 3min, 4min}) {
        day.tellUpTo(at, now_, account_);
        seen.push_back(codeOf("page-2") + " " + codeOf("page-3"));
    }

    EXPECT_THAT(seen,
        testing::ElementsAre("operational operational", "major-outage operational", "degraded maintenance",
            "operational maintenance", "operational operational"));
}

}  // namespace
}  // namespace larkspan::simulator
