#include <QWheelEvent>

#include <gtest/gtest.h>

#include "MaintenancesOnScreen.h"
#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/StatusPageMaintenancesView.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan {

namespace {

/// The picker of the start, in the form of a new maintenance.
class PickerOnScreen : public MaintenancesOnScreen {
protected:
    PickerOnScreen() { openForm(); }

    std::string start() const
    {
        const auto& picker = form().scheduledFor;
        return picker->date() + " " + picker->time();
    }

    maintenances::CreateMaintenanceView& form() const { return *(*dashboard->openedPage)->maintenances()->form(); }

    void focusDays() { focus(Role::Table, "Start date"); }

    void turnWheel(QQuickItem& over, int notches)
    {
        const auto point = over.mapToScene(QPointF(over.width() / 2, over.height() / 2));
        QWheelEvent turn(point, window().mapToGlobal(point), {}, QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &turn);
        settle();
    }

    QQuickItem& days() { return item(Role::Table, QStringLiteral("Start date")); }

    QQuickItem& firstCell(const char* name) { return item(Role::Cell, QString::fromUtf8(name)); }
};

TEST_F(PickerOnScreen, ShowsTheMomentItsZoneAndAMonthOfSixWeeks)
{
    for (const auto* const text : {"Start", "2026-11-20", "Time", "11/2026", "Mon", "Sun", "UTC"}) {
        EXPECT_TRUE(shows(text)) << text;
    }
    EXPECT_EQ(names(Role::Cell).size(), 84) << "of the start and of the end";
    EXPECT_EQ(textOf("Start hour"), "09");
    EXPECT_EQ(textOf("Start minute"), "00");
}

struct KeyRow {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    std::string chosen;
};

class KeyInTheCalendar : public PickerOnScreen, public testing::WithParamInterface<KeyRow> {};

TEST_P(KeyInTheCalendar, ChoosesADay)
{
    focusDays();
    EXPECT_EQ(focused(), "2026-11-20");
    press(GetParam().key, GetParam().modifiers);
    EXPECT_EQ(start(), GetParam().chosen + " 09:00");
    EXPECT_EQ(focused(), GetParam().chosen) << "the focus follows";
}

INSTANTIATE_TEST_SUITE_P(EachKey, KeyInTheCalendar,
    testing::Values(KeyRow{Qt::Key_Left, Qt::NoModifier, "2026-11-19"},
        KeyRow{Qt::Key_Right, Qt::NoModifier, "2026-11-21"}, KeyRow{Qt::Key_Up, Qt::NoModifier, "2026-11-13"},
        KeyRow{Qt::Key_Down, Qt::NoModifier, "2026-11-27"}, KeyRow{Qt::Key_Home, Qt::NoModifier, "2026-11-16"},
        KeyRow{Qt::Key_End, Qt::NoModifier, "2026-11-22"}, KeyRow{Qt::Key_PageUp, Qt::NoModifier, "2026-10-20"},
        KeyRow{Qt::Key_PageDown, Qt::NoModifier, "2026-12-20"}, KeyRow{Qt::Key_PageUp, Qt::ShiftModifier, "2025-11-20"},
        KeyRow{Qt::Key_PageDown, Qt::ShiftModifier, "2027-11-20"}));

TEST_F(PickerOnScreen, IsOneStopOfTheTabKeyForItsDays)
{
    focus(Role::ComboBox, "Component Group");
    Sent stops;
    for (int stop = 0; stop < 5; ++stop) {
        press(Qt::Key_Tab);
        stops.push_back(focused());
    }
    EXPECT_EQ(stops, (Sent{"Start hour", "Start minute", "Previous Month", "Next Month", "2026-11-20"}));
}

TEST_F(PickerOnScreen, BrowsesWithItsButtonsAndChoosesTheDayInSight)
{
    choose("Next Month");
    EXPECT_TRUE(shows("12/2026"));
    EXPECT_EQ(start(), "2026-11-20 09:00");
    focusDays();
    EXPECT_EQ(focused(), "2026-12-01");
    press(Qt::Key_Space);
    EXPECT_EQ(start(), "2026-12-01 09:00");
}

TEST_F(PickerOnScreen, TakesADayByAClickAndGoesOnFromThereByKeyboard)
{
    auto& cell = firstCell("2026-11-26");
    days().parentItem()->forceActiveFocus(Qt::TabFocusReason);
    focusDays();
    const auto point = cell.mapToScene(QPointF(cell.width() / 2, cell.height() / 2)).toPoint();
    QTest::mouseClick(&window(), Qt::LeftButton, Qt::NoModifier, point);
    settle();
    EXPECT_EQ(start(), "2026-11-26 09:00");
    press(Qt::Key_Right);
    EXPECT_EQ(start(), "2026-11-27 09:00");
}

TEST_F(PickerOnScreen, TakesHoursAndMinutesTypedInOneGo)
{
    type("Start hour", "1745");
    EXPECT_EQ(start(), "2026-11-20 17:45");
    EXPECT_EQ(focused(), "Start minute");
    type("Start hour", "730");
    EXPECT_EQ(start(), "2026-11-20 07:30");
    EXPECT_EQ(textOf("Start hour"), "07");
}

TEST_F(PickerOnScreen, LeavesWhatIsBeingTypedAloneAndTakesNoLetters)
{
    type("Start hour", "x1");
    EXPECT_EQ(textOf("Start hour"), "1");
    EXPECT_EQ(start(), "2026-11-20 01:00");
    press(Qt::Key_Tab);
    EXPECT_EQ(textOf("Start hour"), "01");
}

TEST_F(PickerOnScreen, StepsThroughTheTimeWithArrowsAndPageKeys)
{
    focus(Role::EditableText, "Start hour");
    press(Qt::Key_Up);
    press(Qt::Key_PageUp);
    EXPECT_EQ(start(), "2026-11-20 16:00");
    EXPECT_EQ(textOf("Start hour"), "16");
    press(Qt::Key_Down);
    focus(Role::EditableText, "Start minute");
    press(Qt::Key_Down);
    press(Qt::Key_PageDown);
    EXPECT_EQ(start(), "2026-11-20 14:49");
}

TEST_F(PickerOnScreen, StepsWithTheWheelOnlyInTheFieldThatHasTheKeyboard)
{
    auto& hour = item(Role::EditableText, QStringLiteral("Start hour"));
    focus(Role::EditableText, "Start hour");
    turnWheel(hour, 2);
    EXPECT_EQ(start(), "2026-11-20 11:00");
    focus(Role::EditableText, "Start minute");
    turnWheel(hour, 1);
    EXPECT_EQ(start(), "2026-11-20 11:00") << "it scrolls the form";
}

TEST_F(PickerOnScreen, LooksThroughTheMonthsWithTheWheelOverTheirName)
{
    focusDays();
    turnWheel(*item(Role::StaticText, QStringLiteral("11/2026")).parentItem(), -2);
    EXPECT_TRUE(shows("1/2027"));
    EXPECT_EQ(start(), "2026-11-20 09:00");
}

TEST_F(PickerOnScreen, WithoutTheKeyboardTheWheelOverItsCalendarScrollsTheForm)
{
    focus(Role::EditableText, "Start hour");
    auto& month = item(Role::StaticText, QStringLiteral("11/2026"));
    const auto before = month.mapToScene({0, 0}).y();
    turnWheel(month, -1);
    QTest::qWait(100);
    settle();
    EXPECT_LT(month.mapToScene({0, 0}).y(), before);
    EXPECT_TRUE(shows("11/2026"));
    EXPECT_FALSE(shows("12/2026"));
}

TEST_F(PickerOnScreen, TakesNoDigitThatMakesNoTime)
{
    type("Start hour", "25");
    EXPECT_EQ(textOf("Start hour"), "2");
    EXPECT_EQ(start(), "2026-11-20 02:00");
    typeLetters("4");
    EXPECT_EQ(textOf("Start hour"), "2");
    typeLetters("3");
    EXPECT_EQ(start(), "2026-11-20 23:00");
    type("Start minute", "75");
    EXPECT_EQ(textOf("Start minute"), "7");
    EXPECT_EQ(start(), "2026-11-20 23:07");
}

TEST_F(PickerOnScreen, TakesWhatIsTypedAfterAPressIntoAFieldThatHasTheKeyboardAlready)
{
    type("Start minute", "30");
    auto& minute = item(Role::EditableText, QStringLiteral("Start minute"));
    for (const auto share : {0.1, 0.5, 0.9}) {
        const QPointF place(minute.width() * share, minute.height() / 2);
        for (const auto* const digits : {"45", "05"}) {
            QTest::mouseClick(&window(), Qt::LeftButton, {}, minute.mapToScene(place).toPoint());
            typeLetters(digits);
            EXPECT_EQ(start(), std::string("2026-11-20 09:") + digits) << share;
        }
    }
}

TEST_F(PickerOnScreen, TakesWhatIsTypedWhereverTheCaretIs)
{
    focus(Role::EditableText, "Start minute");
    for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End}) {
        typeLetters("30");
        press(key);
        typeLetters("45");
        EXPECT_EQ(start(), "2026-11-20 09:45") << key;
    }
    typeLetters("123");
    EXPECT_EQ(start(), "2026-11-20 09:03") << "after two digits another begins anew";
}

TEST_F(MaintenancesOnScreen, OnAClockOfTwelveHoursAButtonSwitchesTheHalfOfTheDay)
{
    locale.halves = {"AM", "PM"};
    openForm();
    EXPECT_EQ(textOf("Start hour"), "9");
    choose("AM");
    EXPECT_TRUE(offers("PM"));
    EXPECT_EQ(textOf("Start hour"), "9");
    const auto& opened = *(*dashboard->openedPage)->maintenances()->form();
    EXPECT_EQ(opened.scheduledFor->time(), "21:00");
}

}  // namespace

}  // namespace larkspan
