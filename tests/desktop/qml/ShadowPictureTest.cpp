#include "bridge/items/ShadowPicture.h"

#include <gtest/gtest.h>

namespace larkspan::bridge {

namespace {

class ShadowOfABox : public testing::Test {
protected:
    int alpha(int x, int y) const { return picture.pixelColor(x, y).alpha(); }

    const ShadowShape shape{.color = QColor(0, 0, 0, 200), .radius = 12, .reach = 20};
    const QImage picture = shadowPicture(shape);
    const int middle = picture.width() / 2;
    /// The first rows and columns of the box itself.
    const int left = 20;
    const int top = 15;
    const int bottom = picture.height() - 25;
};

TEST_F(ShadowOfABox, FadesFromTheEdgeToNothing)
{
    EXPECT_EQ(alpha(middle, picture.height() - 1), 0);
    int last = 0;
    for (int y = picture.height() - 1; y >= bottom; --y) {
        EXPECT_GE(alpha(middle, y), last) << y;
        last = alpha(middle, y);
    }
    EXPECT_GT(last, 100);
    EXPECT_EQ(alpha(0, 0), 0);
}

TEST_F(ShadowOfABox, FallsBelowTheBox)
{
    EXPECT_GT(alpha(middle, bottom + 2), alpha(middle, top - 3));
    EXPECT_EQ(alpha(2, middle), alpha(picture.width() - 3, middle)) << "and to neither side";
}

TEST_F(ShadowOfABox, IsNotPaintedWhereTheBoxIsSoThatNothingShowsThroughWhileItFadesIn)
{
    for (int y = top + 3; y < bottom - 3; ++y) EXPECT_EQ(alpha(middle, y), 0) << y;
    EXPECT_EQ(alpha(left + 3, middle), 0);
    EXPECT_GT(alpha(left - 1, middle), 0);
}

TEST_F(ShadowOfABox, ItsMiddleRowAndColumnCanBeStretched)
{
    for (int at = 0; at < picture.width(); ++at) {
        EXPECT_EQ(alpha(at, middle), alpha(at, middle - 1)) << at;
        EXPECT_EQ(alpha(middle, at), alpha(middle - 1, at)) << at;
    }
}

}  // namespace

}  // namespace larkspan::bridge
