#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ShownText.h"
#include "gallery/ShownScene.h"

namespace larkspan::gallery {

namespace {

/// Whether two texts overlap; lines that touch do not.
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

using Findings = std::vector<std::string>;

Findings findingsIn(const QQuickWindow& window)
{
    Findings findings;
    const auto texts = textsOf(window);
    if (texts.empty()) findings.emplace_back("there is no text");
    for (auto one = texts.begin(); one != texts.end(); ++one) {
        if (!one->cut.isEmpty()) findings.push_back(words(*one) + " is cut " + one->cut.toStdString());
        if (one->hasBox) findings.push_back(words(*one) + " has a character without a glyph");
        for (auto other = std::next(one); other != texts.end(); ++other) {
            if (overlap(*one, *other)) findings.push_back(words(*one) + " lies on " + words(*other));
        }
    }
    return findings;
}

class TextOfAScene : public testing::TestWithParam<Scene> {
protected:
    /// Counts only what persists: on a busy machine a list may still be moving to its place.
    void look(const ShownScene::Look& look)
    {
        const ShownScene shown(GetParam(), look, main);
        Findings findings = findingsIn(shown.window());
        for (int looks = 0; !findings.empty() && looks < 20; ++looks) {
            QTest::qWait(100);
            shown.window().grabWindow();
            findings = findingsIn(shown.window());
        }
        EXPECT_EQ(findings, Findings{}) << "at " << look.size.width() << " points with a font of "
                                        << look.fontPointSize;
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
