#include <gtest/gtest.h>

#include "ShownText.h"
#include "gallery/ShownScene.h"

namespace larkspan::gallery {

namespace {

/// Whether two texts lie on one another; lines that touch do not.
bool overlap(const ShownText& one, const ShownText& other)
{
    if (one.layer != other.layer || one.floating != other.floating) return false;
    const auto both = one.seen & other.seen;
    return both.width() > 2 && both.height() > 2;
}

std::string words(const ShownText& text)
{
    return "\"" + text.text.left(60).toStdString() + "\"";
}

class TextOfAScene : public testing::TestWithParam<Scene> {
protected:
    void look(const ShownScene::Look& look)
    {
        const ShownScene shown(GetParam(), look, main);
        const auto texts = textsOf(shown.window());
        const auto where = " at " + std::to_string(look.size.width()) + " points with a font of "
            + std::to_string(static_cast<int>(look.fontPointSize));
        EXPECT_FALSE(texts.empty());
        for (auto one = texts.begin(); one != texts.end(); ++one) {
            EXPECT_TRUE(one->cut.isEmpty()) << words(*one) << " is cut " << one->cut.toStdString() << where;
            for (auto other = std::next(one); other != texts.end(); ++other) {
                EXPECT_FALSE(overlap(*one, *other)) << words(*one) << " lies on " << words(*other) << where;
            }
        }
    }

    adapters::MainExecutor main;
};

TEST_P(TextOfAScene, NeitherOverlapsNorIsCutAtTheSizeOfTheScene)
{
    look(ShownScene::Look::of(GetParam()));
}

TEST_P(TextOfAScene, NeitherOverlapsNorIsCutInTheSmallestWindowWithALargeFont)
{
    look({.size = {480, 440}, .fontPointSize = 20});
}

TEST_P(TextOfAScene, NeitherOverlapsNorIsCutInAWideWindowWithAFontInBetween)
{
    look({.size = {1600, 900}, .fontPointSize = 14});
}

INSTANTIATE_TEST_SUITE_P(
    Gallery, TextOfAScene, testing::ValuesIn(scenes()), [](const testing::TestParamInfo<Scene>& scene) {
        auto name = scene.param.name;
        std::ranges::replace(name, '-', '_');
        return name;
    });

}  // namespace

}  // namespace larkspan::gallery
