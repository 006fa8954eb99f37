#include "monitors/LatencySelection.h"

#include <gtest/gtest.h>

namespace larkspan::monitors {

namespace {

std::vector<LatencyDataPoint> samples(std::size_t count)
{
    return latencyDataPoints(std::vector<std::int64_t>(count, 1), std::nullopt);
}

TEST(NearestSample, IsTheEarlierOneOfTwoThatAreEquallyNear)
{
    EXPECT_EQ(nearestIndex(samples(10), 3.5), 3);
    EXPECT_EQ(nearestIndex(samples(10), 3.49), 3);
    EXPECT_EQ(nearestIndex(samples(10), 3.51), 4);
}

TEST(NearestSample, BeyondAnEndIsThatEnd)
{
    EXPECT_EQ(nearestIndex(samples(10), -4), 0);
    EXPECT_EQ(nearestIndex(samples(10), 1e9), 9);
}

TEST(NearestSample, IsTheOnlyOneOrNone)
{
    EXPECT_EQ(nearestIndex(samples(1), 17), 0);
    EXPECT_EQ(nearestIndex(samples(0), 0), std::nullopt);
}

struct MoveRow {
    std::string name;
    LatencyMove move;
    int fromNowhere;
    int fromTheMiddle;
    int fromTheFirst;
    int fromTheLast;
};

class MoveOfTheSelection : public testing::TestWithParam<MoveRow> {
protected:
    static std::optional<int> moved(std::optional<int> from) { return movedIndex(40, from, GetParam().move); }
};

TEST_P(MoveOfTheSelection, GoesItsWayAndStopsAtTheEnds)
{
    EXPECT_EQ(moved(20), GetParam().fromTheMiddle);
    EXPECT_EQ(moved(0), GetParam().fromTheFirst);
    EXPECT_EQ(moved(39), GetParam().fromTheLast);
}

TEST_P(MoveOfTheSelection, BeginsAtTheEndThatItComesFrom)
{
    EXPECT_EQ(moved(std::nullopt), GetParam().fromNowhere);
}

INSTANTIATE_TEST_SUITE_P(Each, MoveOfTheSelection,
    testing::Values(MoveRow{"Previous", LatencyMove::previous, 39, 19, 0, 38},
        MoveRow{"Next", LatencyMove::next, 0, 21, 1, 39}, MoveRow{"PageBack", LatencyMove::pageBack, 39, 16, 0, 35},
        MoveRow{"PageForward", LatencyMove::pageForward, 0, 24, 4, 39},
        MoveRow{"First", LatencyMove::first, 0, 0, 0, 0}, MoveRow{"Last", LatencyMove::last, 39, 39, 39, 39}),
    [](const auto& row) { return row.param.name; });

TEST(PageOfTheSelection, IsOneSampleWhereATenthWouldBeLess)
{
    EXPECT_EQ(movedIndex(3, 0, LatencyMove::pageForward), 1);
}

TEST(MoveOfTheSelection, IsNoneWithoutSamples)
{
    EXPECT_EQ(movedIndex(0, std::nullopt, LatencyMove::next), std::nullopt);
}

}  // namespace

}  // namespace larkspan::monitors
