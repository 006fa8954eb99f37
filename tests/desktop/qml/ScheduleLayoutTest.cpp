#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "MaintenancesOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

constexpr double sheetMargin = 20;

double luminance(const QColor& color)
{
    const auto channel
        = [](double value) { return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

class ScheduleLayout : public MaintenancesOnScreen {
protected:
    void resize(int width, int height)
    {
        window().resize(width, height);
        settle();
    }

    QRectF days(const char* name) const { return frameOf(item(Role::Table, QString::fromUtf8(name))); }
    QRectF field(const char* name) const { return frameOf(item(Role::EditableText, QString::fromUtf8(name))); }
    QQuickItem& label(const char* text) const { return item(Role::StaticText, QString::fromUtf8(text)); }

    /// Whether both calendars and their times end above `bottom`.
    bool areInSight(double bottom) const
    {
        return std::ranges::all_of(std::vector{days("Start date"), days("End date"), field("Start hour"),
                                       field("Start minute"), field("End hour"), field("End minute")},
            [bottom](const QRectF& place) { return place.top() >= 0 && place.bottom() <= bottom; });
    }

    bool areSideBySide() const
    {
        return days("Start date").top() == days("End date").top()
            && days("Start date").right() < days("End date").left();
    }
};

TEST_F(ScheduleLayout, OfAFormHasBothCalendarsSideBySideAndWithTheirTimesInSight)
{
    openForm();
    for (const int width : {640, 760}) {
        resize(width, 600);
        EXPECT_TRUE(areSideBySide()) << width;
        EXPECT_TRUE(areInSight(600 - sheetMargin)) << width << ": " << days("End date").bottom();
    }
}

TEST_F(ScheduleLayout, OfAnEditorHasBothCalendarsSideBySideAndWithTheirTimesAndLengthInSight)
{
    openEditor();
    for (const int width : {640, 760}) {
        resize(width, 600);
        EXPECT_TRUE(areSideBySide()) << width;
        EXPECT_TRUE(areInSight(600)) << width << ": " << days("End date").bottom();
        EXPECT_LE(frameOf(label("2 hours")).bottom(), 600) << width;
    }
}

TEST_F(ScheduleLayout, OfANarrowFormHasTheEndBelowTheStart)
{
    openForm();
    resize(480, 440);
    EXPECT_EQ(days("Start date").left(), days("End date").left());
    EXPECT_LT(days("Start date").bottom(), field("End hour").top());
}

TEST_F(ScheduleLayout, OfAFormHasTheLengthUnderTheEndInTheColourOfAWarningIfItForbidsToSave)
{
    openForm();
    type("Title", "Upgrade");
    EXPECT_EQ(colorOf(label("1 hour")), light::secondary);
    EXPECT_GT(gapBelow(item(Role::Table, QStringLiteral("End date")), label("1 hour")), 0);
    type("End hour", "08");
    EXPECT_FALSE(isEnabled("Save"));
    EXPECT_EQ(colorOf(label("The end is before the start.")), light::orange);
    EXPECT_FALSE(shows("1 hour"));
}

TEST_F(ScheduleLayout, OfAnEditorLeavesAnEndBeforeTheStartAPlainRemark)
{
    openEditor();
    type("End hour", "08");
    EXPECT_TRUE(isEnabled("Save"));
    EXPECT_EQ(colorOf(label("The end is before the start.")), light::secondary);
}

struct Colours {
    bool isDark;
    bool hasHighContrast;
};

class DaysInColours : public ScheduleLayout, public testing::WithParamInterface<Colours> {
protected:
    DaysInColours()
    {
        mainWindow.appearance().setProperty("isDark", GetParam().isDark);
        mainWindow.appearance().setProperty("hasHighContrast", GetParam().hasHighContrast);
        openForm();
    }

    /// The shape of a day, and its number.
    static const QQuickItem& shapeOf(const QQuickItem& cell) { return *cell.childItems().at(0); }
    static const QQuickItem& numberOf(const QQuickItem& cell) { return *cell.childItems().at(1); }

    /// The ground of the number: the card under the shape, or the shape itself.
    QColor groundOf(const QQuickItem& cell) const
    {
        const auto& shape = colorOf(shapeOf(cell));
        return shape.alpha() == 0 ? colorOf(shapeAround(*cell.parentItem())) : shape;
    }
};

TEST_P(DaysInColours, AreLegibleInTheMonthBesideItAndWhereChosen)
{
    const QStringList sides{QStringLiteral("2026-10-31"), QStringLiteral("2026-12-01")};
    for (const auto& name : sides + QStringList{QStringLiteral("2026-11-20"), QStringLiteral("2026-11-19")}) {
        const auto& cell = item(Role::Cell, name);
        EXPECT_GE(contrast(colorOf(numberOf(cell)), groundOf(cell)), 4.5) << name.toStdString();
    }
    const auto& inMonth = numberOf(item(Role::Cell, QStringLiteral("2026-11-19")));
    for (const auto& name : sides) {
        EXPECT_LT(sizeOf(numberOf(item(Role::Cell, name))), sizeOf(inMonth)) << "told apart without a colour";
    }
}

TEST_P(DaysInColours, HaveARingAroundTodayEvenIfItIsChosen)
{
    const auto ringOf = [this](const char* day) {
        std::vector<QColor> colours;
        const auto& shape = shapeOf(item(Role::Cell, QString::fromUtf8(day)));
        const auto note = [&](const QQuickItem& each) {
            auto* const border = each.property("border").value<QObject*>();
            if (each.isVisible() && border && border->property("width").toInt() == 1)
                colours.push_back(border->property("color").value<QColor>());
        };
        note(shape);
        for (const auto* const child : shape.childItems()) note(*child);
        return colours;
    };
    const auto& today = item(Role::Cell, QStringLiteral("2026-11-20"));
    ASSERT_EQ(ringOf("2026-11-20").size(), 1);
    EXPECT_GE(contrast(ringOf("2026-11-20").front(), groundOf(today)), 3);
    EXPECT_EQ(ringOf("2026-11-21").size(), 0);
    type("Start hour", "09");
    focus(Role::Table, "Start date");
    press(Qt::Key_Right);
    ASSERT_EQ(ringOf("2026-11-20").size(), 1);
    EXPECT_GE(contrast(ringOf("2026-11-20").front(), groundOf(today)), 3);
    EXPECT_EQ(ringOf("2026-11-21").size(), 0) << "it is filled";
}

INSTANTIATE_TEST_SUITE_P(LightDarkAndHighContrast, DaysInColours,
    testing::Values(Colours{false, false}, Colours{true, false}, Colours{false, true}, Colours{true, true}));

}  // namespace

}  // namespace larkspan
