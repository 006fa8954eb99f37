#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "FocusStop.h"
#include "gallery/ShownScene.h"

namespace larkspan::gallery {

namespace {

constexpr int mostStops = 80;
/// The largest distance of a ring from the item that it surrounds: it may leave out the padding above a text.
constexpr qreal mostDistance = 30;

using Findings = std::set<std::string>;

std::string words(const FocusStop& stop)
{
    return "\"" + stop.name.toStdString() + "\"";
}

bool isAround(const QRectF& ring, const QRectF& place)
{
    const auto isNear = [](qreal one, qreal other) { return std::abs(one - other) <= mostDistance; };
    return isNear(ring.left(), place.left()) && isNear(ring.right(), place.right()) && isNear(ring.top(), place.top())
        && isNear(ring.bottom(), place.bottom());
}

void lookAt(const FocusStop& stop, const QQuickWindow& window, Findings& findings)
{
    if (stop.isHeading) findings.insert(words(stop) + " is a heading");
    if (stop.seen.height() < std::min(stop.place.height(), stop.mostHeight) - 2 || stop.seen.width() < 2) {
        findings.insert(words(stop) + " is out of sight");
    }
    if (stop.rings.size() != 1) {
        findings.insert(words(stop) + " has " + std::to_string(stop.rings.size()) + " rings");
        return;
    }
    const auto& ring = stop.rings.front();
    if (!isAround(ring, stop.seen) && !isAround(ring, stop.place))
        findings.insert(words(stop) + " has its ring elsewhere");
    const auto struck = struckText(window, ring, *stop.holder);
    if (!struck.isEmpty()) findings.insert("the ring of " + words(stop) + " strikes \"" + struck.toStdString() + "\"");
}

class FocusInAScene : public testing::TestWithParam<Scene> {
protected:
    struct Round {
        std::vector<const QQuickItem*> holders{};
        std::string told{};
        Findings findings{};
        int turnsBack = 0;
    };

    static FocusStop step(QQuickWindow& window, Qt::Key key)
    {
        QTest::keyClick(&window, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QCoreApplication::processEvents();
        window.grabWindow();
        return focusIn(window);
    }

    /// The stops from the first one that the key reaches until it is reached again.
    static Round goRound(QQuickWindow& window, Qt::Key key)
    {
        Round round;
        auto stop = step(window, key);
        // While an action runs there may be no stop.
        if (!stop.holder || stop.isInMenu || !stop.whole->activeFocusOnTab()) return round;
        const auto* const first = stop.holder;
        do {
            round.holders.push_back(stop.holder);
            round.told += words(stop) + "; ";
            lookAt(stop, window, round.findings);
            const auto* const before = stop.whole;
            stop = step(window, key);
            const bool isForward = isReadAfter(*stop.whole, *before);
            if (stop.whole != before && isForward != (key == Qt::Key_Tab)) ++round.turnsBack;
        } while (stop.holder != first && round.holders.size() < mostStops);
        if (round.holders.size() == mostStops) round.findings.insert("Tab does not come round");
        return round;
    }

    void look(const ShownScene::Look& look)
    {
        const ShownScene shown(GetParam(), look, main);
        auto& window = shown.window();
        window.requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QAccessible::setActive(true);
        const auto forward = goRound(window, Qt::Key_Tab);
        auto backward = goRound(window, Qt::Key_Backtab);
        EXPECT_EQ(forward.findings, Findings{});
        EXPECT_EQ(backward.findings, Findings{});
        EXPECT_LE(forward.turnsBack, 1) << "more often than from the end to the begin";
        EXPECT_LE(backward.turnsBack, 1);
        std::ranges::reverse(backward.holders);
        if (forward.holders.empty() || backward.holders.empty()) return;
        std::ranges::rotate(backward.holders, std::ranges::find(backward.holders, forward.holders.front()));
        EXPECT_EQ(forward.holders, backward.holders)
            << "Tab goes another way back: " << forward.told << "beside " << backward.told;
    }

    adapters::MainExecutor main;
};

TEST_P(FocusInAScene, HasOneRingInSightAroundWhatTabReachesInTheOrderOfReading)
{
    look(ShownScene::Look::of(GetParam()));
}

TEST_P(FocusInAScene, HasOneRingInSightInTheSmallestWindow)
{
    look({.size = {480, 440}, .fontPointSize = 10, .hasHighContrast = GetParam().hasHighContrast});
}

INSTANTIATE_TEST_SUITE_P(
    Gallery, FocusInAScene, testing::ValuesIn(scenes()), [](const testing::TestParamInfo<Scene>& scene) {
        auto name = scene.param.name;
        std::ranges::replace(name, '-', '_');
        return name;
    });

}  // namespace

}  // namespace larkspan::gallery
