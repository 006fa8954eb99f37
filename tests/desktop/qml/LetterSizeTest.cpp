#include <gtest/gtest.h>

#include "ChosenSize.h"
#include "KitWindow.h"
#include "Measures.h"
#include "bridge/values/LinkValue.h"
#include "bridge/values/PillValue.h"

namespace larkspan {

namespace {

/// A pill with a symbol.
class PillWithASymbol : public testing::Test, public KitWindow {
protected:
    PillWithASymbol()
        : KitWindow(QStringLiteral("property pill shown\nPill { objectName: \"pill\"; pill: window.shown }"))
    {
        setProperty("shown",
            QVariant::fromValue(
                bridge::PillValue{.text = QStringLiteral("Paused"), .symbol = QStringLiteral("clock")}));
    }

    double gap() const
    {
        const auto& pill = item(QStringLiteral("pill"));
        return gapBeside(
            *partOf(pill, "name", QStringLiteral("clock")), *partOf(pill, "text", QStringLiteral("Paused")));
    }
};

class LargePillWithASymbol : public LargeLetters, public PillWithASymbol {};

TEST_F(PillWithASymbol, HasFourPointsBetweenSymbolAndWord)
{
    EXPECT_EQ(gap(), 4);
}

TEST_F(LargePillWithASymbol, HasSixPointsBetweenThem)
{
    EXPECT_EQ(gap(), 6);
}

/// A link in little room.
class NarrowLink : public LargeLetters, public testing::Test, public KitWindow {
protected:
    NarrowLink()
        : KitWindow(
              QStringLiteral("property link shown\nLinkRow { objectName: \"link\"; width: 250; link: window.shown }"))
    {
        setProperty("shown", QVariant::fromValue(bridge::LinkValue{QStringLiteral("globe"), title, subtitle}));
    }

    const QString title = QStringLiteral("Community on Discord");
    const QString subtitle = QStringLiteral("Source code and issue tracking");
};

TEST_F(NarrowLink, ShowsBothItsLinesWholeAndGrows)
{
    const auto& link = item(QStringLiteral("link"));
    const auto& upper = *partOf(link, "text", title);
    const auto& lower = *partOf(link, "text", subtitle);
    for (const auto* const words : {&upper, &lower}) {
        EXPECT_FALSE(words->property("truncated").toBool());
        EXPECT_GE(words->property("lineCount").toInt(), 2);
        EXPECT_EQ(words->property("effectiveHorizontalAlignment").toInt(), Qt::AlignLeft);
    }
    EXPECT_GE(gapBelow(upper, lower), 0);
    EXPECT_GE(frameOf(link).bottom() - frameOf(lower).bottom(), 8);
    EXPECT_GE(frameOf(upper).top() - frameOf(link).top(), 8);
}

}  // namespace

}  // namespace larkspan
