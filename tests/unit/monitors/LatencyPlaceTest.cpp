#include "monitors/LatencyPlace.h"

#include <gtest/gtest.h>

namespace larkspan::monitors {

namespace {

TEST(PlaceOfASample, IsSpacedEvenlyFromEdgeToEdge)
{
    EXPECT_EQ(latencyX(0, 5, 400), 0);
    EXPECT_EQ(latencyX(1, 5, 400), 100);
    EXPECT_EQ(latencyX(4, 5, 400), 400);
}

TEST(PlaceOfASample, ThatIsAloneIsTheMiddle)
{
    EXPECT_EQ(latencyX(0, 1, 400), 200);
}

TEST(PositionOfAPointer, IsTheIndexUnderItWithWhatIsBetween)
{
    EXPECT_EQ(latencyPosition(100, 5, 400), 1);
    EXPECT_EQ(latencyPosition(350, 5, 400), 3.5);
}

TEST(PositionOfAPointer, GoesOnBeyondThePlot)
{
    EXPECT_EQ(latencyPosition(-100, 5, 400), -1);
    EXPECT_EQ(latencyPosition(500, 5, 400), 5);
}

TEST(PositionOfAPointer, IsTheOneSampleEverywhere)
{
    EXPECT_EQ(latencyPosition(0, 1, 400), 0);
    EXPECT_EQ(latencyPosition(399, 1, 400), 0);
}

TEST(PositionOfAPointer, IsNoneWithoutAPlot)
{
    EXPECT_EQ(latencyPosition(10, 5, 0), std::nullopt);
    EXPECT_EQ(latencyPosition(10, 5, -8), std::nullopt);
}

TEST(PlaceOfACallout, IsCentredOverItsSampleAndNeverBesideTheGraph)
{
    EXPECT_EQ(calloutLeft(200, 100, 400), 150);
    EXPECT_EQ(calloutLeft(20, 100, 400), 0);
    EXPECT_EQ(calloutLeft(390, 100, 400), 300);
}

TEST(PlaceOfACallout, ThatIsWiderThanTheGraphBeginsWithIt)
{
    EXPECT_EQ(calloutLeft(30, 100, 60), 0);
}

}  // namespace

}  // namespace larkspan::monitors
