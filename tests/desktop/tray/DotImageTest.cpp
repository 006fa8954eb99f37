#include "adapters/tray/DotImage.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace larkspan::adapters {
namespace {

using Dot = platform::MenuRow::Dot;

double luminance(const QColor& color)
{
    const auto linear
        = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

class EachDot : public testing::TestWithParam<Dot> {};

TEST_P(EachDot, StandsOutFromLightAndFromDarkMenus)
{
    EXPECT_GE(contrast(dotColor(GetParam()), Qt::white), 3);
    EXPECT_GE(contrast(dotColor(GetParam()), QColor(0x2b, 0x2e, 0x33)), 3);
}

TEST_P(EachDot, IsACircleOfHalfTheIcon)
{
    const auto image = QImage::fromData(dotImage(GetParam()), "PNG");

    ASSERT_EQ(image.size(), QSize(32, 32));
    EXPECT_EQ(image.pixelColor(16, 16), dotColor(GetParam()));
    EXPECT_EQ(image.pixelColor(16, 9), dotColor(GetParam()));
    EXPECT_EQ(image.pixelColor(16, 7).alpha(), 0);
    EXPECT_EQ(image.pixelColor(8, 8).alpha(), 0);
    EXPECT_EQ(image.pixelColor(24, 16).alpha(), 0);
}

INSTANTIATE_TEST_SUITE_P(DotImage, EachDot, testing::Values(Dot::green, Dot::orange, Dot::red, Dot::blue, Dot::gray));

TEST(DotImage, IsNothingForNoDot)
{
    EXPECT_TRUE(dotImage(Dot::none).isEmpty());
}

}  // namespace
}  // namespace larkspan::adapters
