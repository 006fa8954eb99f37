#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "Samples.h"
#include "account/Seed.h"

namespace larkspan::simulator {
namespace {

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

}  // namespace
}  // namespace larkspan::simulator
