#include <QFont>
#include <QGuiApplication>
#include <QQuickItem>

#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"

namespace larkspan {

namespace {

/// Where things stand, and how large they are, in points of the screen.
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

    /// The tinted shape around a pill's word.
    QQuickItem& pill(const char* word) const { return *label(word).parentItem()->parentItem(); }

    static QFont font(const QQuickItem& label) { return label.property("font").value<QFont>(); }
    static QRectF frame(const QQuickItem& item)
    {
        return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    }

    /// A size of the type scale.
    static double size(double ofBase) { return QGuiApplication::font().pointSizeF() * ofBase; }
};

TEST_F(Layout, OfARowIsADotTheTitleABadgeTheDateAndAPill)
{
    const auto& title = label("Login errors");
    EXPECT_EQ(title.height(), 22);
    EXPECT_EQ(font(title).weight(), QFont::DemiBold);

    const auto& words = *title.parentItem();
    const auto& dot = *words.parentItem()->childItems().constFirst();
    EXPECT_EQ(dot.width(), 10);
    EXPECT_EQ(dot.height(), 10);
    EXPECT_EQ(frame(words).left() - frame(dot).right(), 12);
    EXPECT_EQ(frame(pill("Acknowledged")).left() - frame(words).right(), 12);

    const auto& badge = pill("Critical");
    EXPECT_EQ(frame(badge).top() - frame(title).bottom(), 2);
    EXPECT_EQ(badge.width() - label("Critical").width(), 8);
    EXPECT_EQ(badge.height() - label("Critical").height(), 8);
    EXPECT_EQ(font(label("Critical")).weight(), QFont::Bold);
    EXPECT_NEAR(font(label("Critical")).pointSizeF(), size(0.79), 0.01);
    EXPECT_EQ(badge.property("tint").toDouble(), 0.2);

    EXPECT_EQ(frame(label("2026-11-20")).left() - frame(badge).right(), 6);
    EXPECT_NEAR(font(label("2026-11-20")).pointSizeF(), size(0.86), 0.01);
}

TEST_F(Layout, OfAStatusPillHasEightPointsBesideItsWordAndFourAboveIt)
{
    const auto& status = pill("Acknowledged");
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
    EXPECT_EQ(font(*title).weight(), QFont::Bold);
    EXPECT_NEAR(font(*title).pointSizeF(), size(1.8), 0.01);

    const auto& severity = pill("Critical");
    EXPECT_EQ(severity.width() - label("Critical").width(), 20);
    EXPECT_EQ(severity.height() - label("Critical").height(), 10);
    EXPECT_NEAR(font(label("Critical")).pointSizeF(), size(0.93), 0.01);
    EXPECT_EQ(frame(severity).left() - frame(pill("Acknowledged")).right(), 8);
}

TEST_F(Layout, OfATimelineHasRowsEightPointsApartAndGroupsTwenty)
{
    openFirst();
    EXPECT_EQ(frame(label("Updated")).top() - frame(label("Created")).bottom(), 8);
    EXPECT_NEAR(font(label("Created")).pointSizeF(), size(0.93), 0.01);
    const auto& group = *label("Timeline", Role::Heading).parentItem()->parentItem();
    EXPECT_EQ(frame(group).top() - frame(pill("Critical")).bottom(), 20);
}

TEST_F(Layout, OfAPageIsAPickerTwelvePointsFromTheHeaderAndItsContentTwelveBelow)
{
    const auto& picker = item(Role::PageTabList, QStringLiteral("View"));
    const auto& screen = item(Role::List, QStringLiteral("Incidents"));
    EXPECT_EQ(picker.mapToItem(picker.parentItem(), {0, 0}).y(), 12);
    EXPECT_EQ(frame(screen).top() - frame(picker).bottom(), 12);
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
    EXPECT_EQ(font(title).weight(), QFont::Bold);
    EXPECT_NEAR(font(title).pointSizeF(), size(1.2), 0.01);
    EXPECT_EQ(frame(text).top() - frame(title).bottom(), 16);
    const QQuickItem* symbol = nullptr;
    for (const auto* each : title.parentItem()->childItems()) {
        if (each->isVisible() && each->property("name").toString() == QStringLiteral("checkmark.shield")) symbol = each;
    }
    ASSERT_TRUE(symbol);
    EXPECT_EQ(symbol->width(), 40);
    EXPECT_EQ(frame(title).top() - frame(*symbol).bottom(), 16);
}

}  // namespace

}  // namespace larkspan
