#include "monitors/LatencyCurve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace larkspan::monitors {

namespace {

std::vector<LatencyDataPoint> points(const std::vector<std::int64_t>& values)
{
    return latencyDataPoints(values, std::nullopt);
}

struct DomainRow {
    std::string name;
    std::vector<std::int64_t> values;
    LatencyDomain domain;
};

class DomainOfALatencyGraph : public testing::TestWithParam<DomainRow> {};

TEST_P(DomainOfALatencyGraph, HasZeroAndRoundEnds)
{
    EXPECT_EQ(latencyDomain(points(GetParam().values)), GetParam().domain);
}

INSTANTIATE_TEST_SUITE_P(Each, DomainOfALatencyGraph,
    testing::Values(DomainRow{"NoSample", {}, {0, 1}}, DomainRow{"Zeros", {0, 0, 0}, {0, 1}},
        DomainRow{"One", {37}, {0, 40}}, DomainRow{"RoundAlready", {100}, {0, 100}},
        DomainRow{"Constant", {312, 312}, {0, 350}}, DomainRow{"FarAboveZero", {9'001, 9'004}, {0, 10'000}},
        DomainRow{"Small", {1, 3}, {0, 3}}, DomainRow{"Negative", {-37, -1}, {-40, 0}},
        DomainRow{"AcrossZero", {-120, 480}, {-200, 500}}, DomainRow{"NearerToTheLongerStep", {-10, 345}, {-100, 400}}),
    [](const auto& row) { return row.param.name; });

TEST(DomainOfALatencyGraph, HoldsTheMostExtremeSamples)
{
    using Limits = std::numeric_limits<std::int64_t>;
    const auto domain = latencyDomain(points({Limits::min(), Limits::max()}));

    EXPECT_GE(domain.shareOf(static_cast<double>(Limits::min())), 0);
    EXPECT_LE(domain.shareOf(static_cast<double>(Limits::max())), 1);
    EXPECT_TRUE(std::isfinite(domain.upper - domain.lower));
}

TEST(DomainOfALatencyGraph, SaysWhereAValueIsBetweenBottomAndTop)
{
    const LatencyDomain domain{-100, 300};

    EXPECT_EQ(domain.shareOf(-100), 0);
    EXPECT_EQ(domain.shareOf(0), 0.25);
    EXPECT_EQ(domain.shareOf(300), 1);
}

TEST(LatencyCurve, IsOfItsPointsAndTheirDomain)
{
    const auto curve = LatencyCurve::of(points({12, 40}));

    EXPECT_EQ(curve->points, points({12, 40}));
    EXPECT_EQ(curve->domain, (LatencyDomain{0, 40}));
    EXPECT_EQ(curve->count(), 2);
}

}  // namespace

}  // namespace larkspan::monitors
