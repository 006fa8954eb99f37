#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

class Layout : public IncidentsOnScreen {
protected:
    Layout()
    {
        serve({incident("1", "Login errors",
            R"(, "severity_name": "CRITICAL", "acknowledged_at": "x", "updated_at": "2026-11-20T10:30:00Z")")});
        press(Qt::Key_F5);
    }

    QQuickItem& label(const char* text, QAccessible::Role role = Role::StaticText) const
    {
        return item(role, QString::fromUtf8(text));
    }
};

TEST_F(Layout, OfARowIsADotTheTitleABadgeTheDateAndAPill)
{
    const auto& title = label("Login errors");
    EXPECT_EQ(title.height(), 22);
    EXPECT_EQ(fontOf(title).weight(), QFont::DemiBold);

    const auto& words = *title.parentItem();
    const auto& dot = *words.parentItem()->childItems().constFirst();
    EXPECT_EQ(dot.width(), 10);
    EXPECT_EQ(dot.height(), 10);
    EXPECT_EQ(gapBeside(dot, words), 12);
    EXPECT_EQ(gapBeside(words, shapeAround(label("Acknowledged"))), 12);

    const auto& badge = shapeAround(label("Critical"));
    EXPECT_EQ(gapBelow(title, badge), 2);
    EXPECT_EQ(badge.width() - label("Critical").width(), 8);
    EXPECT_EQ(badge.height() - label("Critical").height(), 8);
    EXPECT_EQ(fontOf(label("Critical")).weight(), QFont::Bold);
    EXPECT_EQ(sizeOf(label("Critical")), type::caption2);
    EXPECT_EQ(badge.property("tint").toDouble(), 0.2);

    EXPECT_EQ(gapBeside(badge, label("2026-11-20")), 6);
    EXPECT_EQ(sizeOf(label("2026-11-20")), type::caption);
}

TEST_F(Layout, OfAStatusPillHasEightPointsBesideItsWordAndFourAboveIt)
{
    const auto& status = shapeAround(label("Acknowledged"));
    EXPECT_EQ(status.width() - label("Acknowledged").width(), 16);
    EXPECT_EQ(status.height() - label("Acknowledged").height(), 8);
    EXPECT_EQ(status.property("radius").toInt(), 6);
    EXPECT_EQ(status.property("tint").toDouble(), 0.15);
}

TEST_F(Layout, OfAnIncidentsHeaderIsItsLargeTitleOverPillsEightPointsApart)
{
    openFirst();
    const auto* title = &label("Login errors", Role::Heading);
    visit([&title](QQuickItem& each) {
        if (each.isVisible() && each.property("layoutHeight").toInt() == 38) title = &each;
    });
    EXPECT_EQ(title->height(), 38);
    EXPECT_EQ(fontOf(*title).weight(), QFont::Bold);
    EXPECT_EQ(sizeOf(*title), type::title);

    const auto& severity = shapeAround(label("Critical"));
    EXPECT_EQ(severity.width() - label("Critical").width(), 20);
    EXPECT_EQ(severity.height() - label("Critical").height(), 10);
    EXPECT_EQ(sizeOf(label("Critical")), type::subheadline);
    EXPECT_EQ(gapBeside(shapeAround(label("Acknowledged")), severity), 8);
}

TEST_F(Layout, OfATimelineHasRowsEightPointsApartAndGroupsTwenty)
{
    openFirst();
    EXPECT_EQ(gapBelow(label("Created"), label("Updated")), 8);
    EXPECT_EQ(sizeOf(label("Created")), type::subheadline);
    const auto& group = *label("Timeline", Role::Heading).parentItem()->parentItem();
    EXPECT_EQ(gapBelow(shapeAround(label("Critical")), group), 20);
}

TEST_F(Layout, OfAPageIsAPickerWithTwelvePointsOfItsOwnAroundItSixteenPointsFromTheHeader)
{
    const auto& picker = item(Role::PageTabList, QStringLiteral("View"));
    const auto& screen = item(Role::List, QStringLiteral("Incidents"));
    EXPECT_EQ(frameOf(picker).top(), frameOf(item(Role::Button, QStringLiteral("Back"))).bottom() + 8 + 16);
    EXPECT_EQ(gapBelow(picker, screen), 12);
    EXPECT_EQ(picker.width(), 560);
    window().resize(480, 440);
    settle();
    EXPECT_EQ(picker.width(), 480 - 2 * 20);
}

TEST_F(Layout, OfAPlaceholderIsASymbolOfFortyPointsAndWhatFollowsSixteenApart)
{
    serve({});
    press(Qt::Key_F5);
    const auto& title = label("No Incidents", Role::Heading);
    const auto& text = label("All systems are running smoothly.");
    EXPECT_EQ(fontOf(title).weight(), QFont::Bold);
    EXPECT_EQ(sizeOf(title), type::title3);
    EXPECT_EQ(gapBelow(title, text), 16);
    const auto& symbol = *partOf(*title.parentItem(), "name", QStringLiteral("checkmark.shield"));
    EXPECT_EQ(symbol.width(), 40);
    EXPECT_EQ(gapBelow(symbol, title), 16);
}

}  // namespace

}  // namespace larkspan
