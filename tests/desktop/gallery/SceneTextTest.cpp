#include <QTest>

#include <gtest/gtest.h>

#include "ShownText.h"
#include "gallery/ShownScene.h"

namespace larkspan::gallery {

namespace {

class TextOfAScene : public testing::TestWithParam<Scene> {
protected:
    /// Counts only what persists: on a busy machine a list may still be moving to its place.
    void look(const ShownScene::Look& look)
    {
        const ShownScene shown(GetParam(), look, main);
        auto findings = findingsIn(shown.window());
        for (int looks = 0; !findings.empty() && looks < 20; ++looks) {
            QTest::qWait(100);
            shown.window().grabWindow();
            findings = findingsIn(shown.window());
        }
        EXPECT_EQ(findings, TextFindings{})
            << "at " << look.size.width() << " points with a font of " << look.fontPointSize;
    }

    adapters::MainExecutor main;
};

TEST_P(TextOfAScene, NeitherOverlapsNorIsCutAtTheSizeOfTheScene)
{
    look(ShownScene::Look::of(GetParam()));
}

TEST_P(TextOfAScene, NeitherOverlapsNorIsCutInTheSmallestWindowWithALargeFont)
{
    look({.size = {480, 440}, .fontPointSize = 20, .hasHighContrast = GetParam().hasHighContrast});
}

TEST_P(TextOfAScene, NeitherOverlapsNorIsCutInAWideWindowWithAFontInBetween)
{
    look({.size = {1600, 900}, .fontPointSize = 14, .hasHighContrast = GetParam().hasHighContrast});
}

INSTANTIATE_TEST_SUITE_P(
    Gallery, TextOfAScene, testing::ValuesIn(scenes()), [](const testing::TestParamInfo<Scene>& scene) {
        auto name = scene.param.name;
        std::ranges::replace(name, '-', '_');
        return name;
    });

}  // namespace

}  // namespace larkspan::gallery
