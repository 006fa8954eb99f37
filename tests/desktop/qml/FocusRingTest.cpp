#include <QColor>

#include <gtest/gtest.h>

#include <vector>

#include "IncidentsOnScreen.h"

namespace larkspan {

namespace {

/// The focus ring while an incident is edited with keyboard and mouse.
class RingOnScreen : public IncidentsOnScreen {
protected:
    /// The visible rings.
    std::vector<QQuickItem*> rings() const
    {
        std::vector<QQuickItem*> found;
        visit([&found](QQuickItem& each) {
            const auto* const border = each.property("border").value<QObject*>();
            if (each.isVisible() && border && border->property("width").toInt() == 2) found.push_back(&each);
        });
        return found;
    }

    /// The name of the item with the ring; empty if there is no ring or more than one.
    QString ringed() const
    {
        const auto all = rings();
        if (all.size() != 1) return {};
        for (auto* each = all.front(); each; each = each->parentItem()) {
            if (!each->hasActiveFocus() || each->isFocusScope()) continue;
            return QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name);
        }
        return {};
    }

    QString focused() const
    {
        const auto* const access = QAccessible::queryAccessibleInterface(mainWindow.window().activeFocusItem());
        return access ? access->text(QAccessible::Name) : QString();
    }

    void tabTo(const char* name)
    {
        for (int step = 0; step < 40 && focused() != QString::fromUtf8(name); ++step) press(Qt::Key_Tab);
        ASSERT_EQ(focused(), QString::fromUtf8(name));
    }

    void click(const QQuickItem& item)
    {
        QTest::mouseClick(
            &window(), Qt::LeftButton, {}, item.mapToScene({item.width() / 2, item.height() / 2}).toPoint());
        settle();
    }
};

TEST_F(RingOnScreen, ShowsAtOnceInADetailThatWasOpenedByTheKeyboard)
{
    openFirst();
    EXPECT_EQ(ringed(), QStringLiteral("Close")) << "its message is in sight and has no link";
}

TEST_F(RingOnScreen, ShowsInAQuestionThatWasOpenedByTheKeyboardAndBehindItAgain)
{
    openFirst();
    tabTo("Delete Incident");
    press(Qt::Key_Return);
    EXPECT_EQ(ringed(), QStringLiteral("Cancel"));
    press(Qt::Key_Escape);
    EXPECT_EQ(ringed(), QStringLiteral("Delete Incident"));
}

TEST_F(RingOnScreen, ShowsOnceAMenuWasLeftByEscape)
{
    press(Qt::Key_Escape);
    click(item(Role::Button, QStringLiteral("Refresh Interval")));
    EXPECT_TRUE(rings().empty());
    press(Qt::Key_Escape);
    EXPECT_EQ(ringed(), QStringLiteral("Refresh Interval"));
}

TEST_F(RingOnScreen, GoesWithTheNextPressOfThePointer)
{
    EXPECT_EQ(ringed(), QStringLiteral("Login errors"));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, {window().width() / 2, window().height() - 5});
    settle();
    EXPECT_TRUE(rings().empty());
}

TEST_F(RingOnScreen, MeetsEachActionHoweverOftenItGoesRound)
{
    openFirst();
    for (int round = 0; round < 2; ++round) {
        tabTo("Acknowledge");
        tabTo("Resolve");
        tabTo("Escalate");
        press(Qt::Key_Tab);
    }
}

TEST_F(RingOnScreen, StandsAroundTheWholeOfAParagraph)
{
    serve({incident("1", "Login errors", R"(, "message": "One\n\nTwo with [a link](https://a.example)\n\nThree")")});
    press(Qt::Key_F5);
    openFirst();
    for (const auto* const name : {"One", "Two with a link", "Three"}) {
        ASSERT_EQ(ringed(), QString::fromUtf8(name));
        const auto& ring = *rings().front();
        const auto place = ring.mapRectToScene({0, 0, ring.width(), ring.height()});
        const auto& text = item(Role::StaticText, QString::fromUtf8(name));
        const auto words = text.mapRectToScene({0, 0, text.width(), text.height()});
        EXPECT_TRUE(place.contains(words)) << name;
        EXPECT_LE(place.top() + 2, words.top()) << name;
        EXPECT_GE(place.bottom() - 2, words.bottom()) << name;
        press(Qt::Key_Down);
    }
}

TEST_F(RingOnScreen, AShortcutLeadsIntoTheListOfItsTabAndTheArrowsOfThePickerStayWithIt)
{
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(ringed(), QStringLiteral("View"));
    press(Qt::Key_Right);
    EXPECT_EQ(ringed(), QStringLiteral("View"));
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(ringed(), QStringLiteral("Login errors"));
}

TEST_F(RingOnScreen, BringsWhatTabReachesIntoSight)
{
    window().resize(480, 440);
    settle();
    openFirst();
    choose("Add Update");
    QTest::keyClick(&window(), 'x');
    settle();
    tabTo("Save Update");
    const auto& save = item(Role::Button, QStringLiteral("Save Update"));
    EXPECT_LE(save.mapToScene({0, save.height()}).y(), 440);
    EXPECT_GE(save.mapToScene({0, 0}).y(), 48);
    EXPECT_EQ(ringed(), QStringLiteral("Save Update"));
}

}  // namespace

}  // namespace larkspan
