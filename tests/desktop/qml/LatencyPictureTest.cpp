#include "bridge/metrics/LatencyPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace larkspan::bridge {

namespace {

constexpr int width = 120;
constexpr int height = 60;
const QColor blue(0, 0, 255);
const QColor tint(0, 0, 255, 25);

QImage picture(const std::vector<std::int64_t>& values, int scale = 1)
{
    const auto curve = monitors::LatencyCurve::of(monitors::latencyDataPoints(values, std::nullopt));
    return latencyPicture(*curve, QSize(width, height) * scale, {blue, tint, 2.0 * scale, 4.0 * scale, 8.0 * scale});
}

/// The opacities of a column, from top to bottom.
std::vector<int> column(const QImage& image, int x)
{
    std::vector<int> alphas;
    for (int y = 0; y < image.height(); ++y) alphas.push_back(qAlpha(image.pixel(x, y)));
    return alphas;
}

/// The number of pixels of line in the column, including fractions of partly covered ones.
double lineIn(const QImage& image, int x)
{
    double sum = 0;
    for (const int alpha : column(image, x)) {
        if (alpha > tint.alpha()) sum += alpha / 255.0;
    }
    return sum;
}

/// The first row of the column that the line covers fully; -1 if there is none.
int rowOfLine(const QImage& image, int x)
{
    const auto alphas = column(image, x);
    const auto found = std::ranges::find(alphas, 255);
    return found == alphas.end() ? -1 : static_cast<int>(found - alphas.begin());
}

TEST(LatencyPicture, IsEmptyWithoutSamples)
{
    EXPECT_EQ(picture({}).pixel(60, 30), qRgba(0, 0, 0, 0));
}

class LatencyPictureAtAScale : public testing::TestWithParam<int> {};

TEST_P(LatencyPictureAtAScale, DrawsConstantSamplesAsALineOfTwoPointsWithSharpEdges)
{
    const int scale = GetParam();
    // The domain reaches to 200, so the line is in the middle between the insets.
    const auto alphas = column(picture({100, 100, 200, 100, 100}, scale), 10 * scale);

    for (int y = 0; y < height * scale; ++y) {
        const bool isLine = y >= 29 * scale && y < 31 * scale;
        const bool isArea = y >= 31 * scale;
        EXPECT_EQ(alphas[static_cast<std::size_t>(y)], isLine ? 255 : isArea ? tint.alpha() : 0) << y;
    }
}

TEST_P(LatencyPictureAtAScale, KeepsTheWidthOfTheLineWhereItRises)
{
    const int scale = GetParam();
    // From corner to corner: 52 points of height over 112 of width.
    const double slope = 52.0 / 112;
    EXPECT_NEAR(lineIn(picture({0, 100}, scale), 60 * scale), 2 * scale * std::sqrt(1 + slope * slope), 0.3);
}

TEST_P(LatencyPictureAtAScale, SmoothsWhatIsNeitherLevelNorUpright)
{
    const auto image = picture({0, 100}, GetParam());
    int smooth = 0;
    for (int x = 20; x < 100; ++x) {
        for (const int alpha : column(image, x)) smooth += alpha > tint.alpha() && alpha < 255 ? 1 : 0;
    }
    EXPECT_GT(smooth, 80);
}

INSTANTIATE_TEST_SUITE_P(EachScale, LatencyPictureAtAScale, testing::Values(1, 2, 3));

TEST(LatencyPicture, OfZerosIsALineAtTheBottom)
{
    EXPECT_EQ(rowOfLine(picture({0, 0, 0}), 60), 55);
}

TEST(LatencyPicture, OfNegativeSamplesHangsFromZero)
{
    const auto image = picture({-50, -50, -100, -100});
    EXPECT_EQ(rowOfLine(image, 20), 29);
    EXPECT_EQ(qAlpha(image.pixel(20, 10)), tint.alpha()) << "the area is between zero and the line";
    EXPECT_EQ(qAlpha(image.pixel(20, 40)), 0) << "and not below the line";
}

TEST(LatencyPicture, OfOneSampleIsADotInTheMiddle)
{
    const auto image = picture({100});
    EXPECT_EQ(qAlpha(image.pixel(60, 4)), 255);
    EXPECT_NEAR(lineIn(image, 59), 6, 0.5);
    EXPECT_EQ(lineIn(image, 55), 0);
    EXPECT_EQ(lineIn(image, 64), 0);
}

TEST(LatencyPicture, OfADayOfSamplesShowsASpikeOfOneOfThem)
{
    std::vector<std::int64_t> values(1'440, 100);
    values[720] = 500;
    const auto image = picture(values);

    EXPECT_LE(rowOfLine(image, 59) == -1 ? height : rowOfLine(image, 59), 6);
    EXPECT_GT(rowOfLine(image, 50), 40);
}

TEST(LatencyPicture, KeepsItsInsetsFreeOfTheLine)
{
    const auto image = picture({0, 500, 0, 500});
    for (int y = 0; y < height; ++y) {
        EXPECT_EQ(qAlpha(image.pixel(2, y)), 0) << y;
        EXPECT_EQ(qAlpha(image.pixel(width - 3, y)), 0) << y;
    }
    for (int x = 0; x < width; ++x) {
        EXPECT_EQ(qAlpha(image.pixel(x, 2)), 0) << x;
        EXPECT_LE(qAlpha(image.pixel(x, height - 3)), tint.alpha()) << x;
    }
}

TEST(LatencyPicture, LeavesTheCornersOfItsGroundFree)
{
    const auto image = picture({500, 500});
    EXPECT_EQ(qAlpha(image.pixel(4, height - 1)), 0);
    EXPECT_EQ(qAlpha(image.pixel(width - 5, height - 1)), 0);
    EXPECT_EQ(qAlpha(image.pixel(8, height - 1)), tint.alpha());
    EXPECT_EQ(qAlpha(image.pixel(4, height - 3)), tint.alpha());
}

TEST(LatencyPicture, HasNoRoomForMoreThanItHas)
{
    const auto curve = monitors::LatencyCurve::of(monitors::latencyDataPoints({1, 2, 3}, std::nullopt));
    EXPECT_TRUE(latencyPicture(*curve, QSize(0, 10), {blue, tint, 2, 4, 8}).isNull());
    EXPECT_EQ(latencyPicture(*curve, QSize(3, 3), {blue, tint, 2, 4, 8}).size(), QSize(3, 3));
    const auto alone = monitors::LatencyCurve::of(monitors::latencyDataPoints({1}, std::nullopt));
    EXPECT_EQ(latencyPicture(*alone, QSize(1, 1), {blue, tint, 6, 12, 24}).size(), QSize(1, 1));
}

}  // namespace

}  // namespace larkspan::bridge
