#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

#include "KitWindow.h"
#include "bridge/values/AlertValue.h"

namespace larkspan {

namespace {

QStringList namesOf(QAccessibleInterface* interface, QAccessible::Role role)
{
    QStringList names;
    if (!interface || interface->state().invisible) return names;
    if (interface->role() == role) names << interface->text(QAccessible::Name);
    for (int child = 0; child < interface->childCount(); ++child) names << namesOf(interface->child(child), role);
    return names;
}

class BusyScreen : public testing::Test, public KitWindow {
protected:
    BusyScreen()
        : KitWindow(QStringLiteral(R"(
            property int clicks: 0
            property bool isDeleting: false
            ScreenFrame {
                anchors.fill: parent
                title: "Screen"
                isBusy: window.isDeleting
                CommandButton { width: 200; height: 200; text: "Press"; onClicked: window.clicks += 1 }
            })"))
    {
    }

    void click()
    {
        QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(50, 150));
        settle();
    }
};

TEST_F(BusyScreen, CannotBeClickedAndNamesItsProgress)
{
    click();
    EXPECT_EQ(property("clicks").toInt(), 1);
    setProperty("isDeleting", true);
    click();
    EXPECT_EQ(property("clicks").toInt(), 1);
    EXPECT_EQ(namesOf(QAccessible::queryAccessibleInterface(&window()), QAccessible::ProgressBar),
        QStringList{"In progress"});
}

class AlertOfAScreen : public testing::Test, public KitWindow {
protected:
    AlertOfAScreen()
        : KitWindow(QStringLiteral(R"(
            property alert failure
            property alert next
            property int dismissals: 0
            ScreenFrame {
                anchors.fill: parent
                title: "Screen"
                alert: window.failure
                onAlertDismissed: { window.dismissals += 1; window.failure = window.next }
                CommandButton { objectName: "before"; text: "Before"; focus: true }
            })"))
    {
        item(QStringLiteral("before")).forceActiveFocus(Qt::TabFocusReason);
        show("failure", 1, "Server returned HTTP status code 409.");
    }

    void show(const char* property, int number, const char* text)
    {
        setProperty(property, QVariant::fromValue(bridge::AlertValue{number, QString::fromUtf8(text)}));
    }

    QStringList dialogs() const
    {
        return namesOf(QAccessible::queryAccessibleInterface(&window()), QAccessible::Dialog);
    }
};

TEST_F(AlertOfAScreen, IsADialogTitledErrorWithTheWordsAndOneButton)
{
    EXPECT_EQ(dialogs(), QStringList{"Error"});
    EXPECT_TRUE(namesOf(QAccessible::queryAccessibleInterface(&window()), QAccessible::StaticText)
            .contains(QStringLiteral("Server returned HTTP status code 409.")));
    EXPECT_EQ(
        namesOf(QAccessible::queryAccessibleInterface(&window()), QAccessible::Button), (QStringList{"Before", "OK"}));
}

TEST_F(AlertOfAScreen, ReturnAndEscapeDismissItOnceAndGiveTheFocusBack)
{
    press(Qt::Key_Return);
    EXPECT_EQ(property("dismissals").toInt(), 1);
    show("failure", 2, "Again.");
    press(Qt::Key_Escape);
    EXPECT_EQ(property("dismissals").toInt(), 2);
    EXPECT_TRUE(dialogs().isEmpty());
    EXPECT_TRUE(item(QStringLiteral("before")).hasActiveFocus());
}

TEST_F(AlertOfAScreen, ThatIsReadIsFollowedByTheNextAlsoWhereThatSaysTheSame)
{
    for (const auto* const text : {"Server returned HTTP status code 500.", "Server returned HTTP status code 500."}) {
        show("next", property("dismissals").toInt() + 2, text);
        press(Qt::Key_Return);
        EXPECT_EQ(dialogs(), QStringList{"Error"});
        EXPECT_TRUE(namesOf(QAccessible::queryAccessibleInterface(&window()), QAccessible::StaticText)
                .contains(QString::fromUtf8(text)));
    }
    show("next", 0, "");
    press(Qt::Key_Return);
    EXPECT_EQ(property("dismissals").toInt(), 3);
    EXPECT_TRUE(dialogs().isEmpty());
    EXPECT_TRUE(item(QStringLiteral("before")).hasActiveFocus());
}

class TitleInOneLine : public testing::Test, public KitWindow {
protected:
    TitleInOneLine()
        : KitWindow(QStringLiteral(R"(
            property string words: "A title that is far too long for the room that it has here"
            MarqueeText { objectName: "title"; width: 100; layoutHeight: 22; text: window.words })"))
    {
    }

    QQuickItem& title() const { return item(QStringLiteral("title")); }
};

TEST_F(TitleInOneLine, ThatExceedsTheWidthIsCutWithAnEllipsisAndDoesNotMove)
{
    EXPECT_TRUE(title().property("truncated").toBool());
    EXPECT_EQ(title().property("lineCount").toInt(), 1);
    EXPECT_EQ(title().width(), 100);
    const auto before = title().mapToScene({0, 0});
    QTest::qWait(100);
    EXPECT_EQ(title().mapToScene({0, 0}), before);
}

TEST_F(TitleInOneLine, IsSaidWholeAlsoWhereTheLineIsCut)
{
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&title())->text(QAccessible::Name), property("words").toString());
}

TEST_F(TitleInOneLine, HasItsHeightWhateverTheTitle)
{
    const auto height = title().height();
    for (const auto* const words : {"", "x", "two\nlines"}) {
        setProperty("words", QString::fromUtf8(words));
        EXPECT_EQ(title().height(), height) << words;
        EXPECT_LE(title().property("lineCount").toInt(), 1) << words;
    }
}

/// The title of a screen without a way back.
class TitleOfAScreen : public testing::Test, public KitWindow {
protected:
    TitleOfAScreen()
        : KitWindow(QStringLiteral(R"(
            property string words
            property bool isDispensable: false
            ScreenFrame {
                objectName: "screen"
                anchors.fill: parent
                title: window.words
                isTitleDispensable: window.isDispensable
                leading: CommandButton { text: "Close" }
                trailing: CommandButton { text: "Edit" }
            })"))
    {
        setProperty("words",
            QStringLiteral("A title that is far too long for the header\nof a window of this width, "
                           "whatever the font in which it is written"));
    }

    const QQuickItem* title() const
    {
        const auto all = item(QStringLiteral("screen")).findChildren<QQuickItem*>();
        const auto found = std::ranges::find_if(all, [this](const auto* each) {
            auto* const access = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(each));
            return access && access->role() == QAccessible::Heading
                && access->text(QAccessible::Name) == property("words").toString();
        });
        return found == all.end() ? nullptr : *found;
    }

    /// The tool tip that is shown.
    QString tip() const
    {
        for (const auto* each : window().findChildren<QObject*>()) {
            if (each->inherits("QQuickToolTip") && each->property("visible").toBool()) {
                return each->property("text").toString();
            }
        }
        return {};
    }
};

TEST_F(TitleOfAScreen, ThatHasNoRoomIsCutOnOneLineAndNamedWhole)
{
    ASSERT_NE(title(), nullptr);
    EXPECT_TRUE(title()->isVisible());
    EXPECT_TRUE(title()->property("truncated").toBool());
    EXPECT_EQ(title()->property("lineCount").toInt(), 1);
    EXPECT_GT(title()->width(), 200);
}

TEST_F(TitleOfAScreen, IsToldWholeByItsToolTipWhereItIsCut)
{
    QTest::mouseMove(&window(), title()->mapToScene({20, 10}).toPoint());
    EXPECT_TRUE(QTest::qWaitFor([this] { return tip() == property("words").toString(); }, 3'000));
}

TEST_F(TitleOfAScreen, KeepsOneLineWhateverLineFeedsItHolds)
{
    setProperty("words", QStringLiteral("one\r\ntwo\u2028three"));
    EXPECT_EQ(title()->property("lineCount").toInt(), 1);
    EXPECT_FALSE(title()->property("truncated").toBool());
    EXPECT_EQ(title()->property("text").toString(), QStringLiteral("one two three"));
}

TEST_F(TitleOfAScreen, ThatStandsElsewhereTooGoesWhereThereIsNoRoom)
{
    setProperty("isDispensable", true);
    EXPECT_FALSE(title()->isVisible());
    setProperty("words", QStringLiteral("Short"));
    EXPECT_TRUE(title()->isVisible());
}

/// A box and its neighbours; `typed` is the text that the box reported last.
class BoxOfText : public testing::Test, public KitWindow {
protected:
    BoxOfText()
        : KitWindow(QStringLiteral(R"(
            property string typed
            Column {
                CommandButton { objectName: "before"; text: "Before" }
                TextBox { objectName: "box"; width: 300; name: "Text"; onEdited: text => window.typed = text }
                CommandButton { objectName: "after"; text: "After" }
            })"))
    {
        item(QStringLiteral("before")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Tab);
    }

    bool hasFocus(const char* name) const { return item(QString::fromLatin1(name)).hasActiveFocus(); }
};

TEST_F(BoxOfText, IsLeftByTabInBothDirectionsAndHoldsNone)
{
    EXPECT_TRUE(hasFocus("box"));
    press(Qt::Key_A);
    press(Qt::Key_Tab);
    EXPECT_TRUE(hasFocus("after"));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(hasFocus("box"));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(hasFocus("before"));
    EXPECT_EQ(item(QStringLiteral("box")).property("text").toString(), QStringLiteral("a"));
}

TEST_F(BoxOfText, TakesLinesWhetherOrNotShiftIsHeld)
{
    press(Qt::Key_A);
    press(Qt::Key_Return);
    press(Qt::Key_B);
    press(Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_C);
    press(Qt::Key_Enter, Qt::ShiftModifier);
    EXPECT_EQ(property("typed").toString(), QStringLiteral("a\nb\nc\n"));
}

TEST_F(BoxOfText, GrowsWithItsLinesAndScrollsBeyondThat)
{
    const auto& box = item(QStringLiteral("box"));
    const auto parts = box.childItems();
    const auto* const view
        = *std::ranges::find_if(parts, [](const auto* part) { return part->inherits("QQuickFlickable"); });
    const auto length = [view] { return view->property("contentHeight").toReal(); };
    const auto lowest = box.height();

    for (int line = 0; line < 7; ++line) press(Qt::Key_Return);
    EXPECT_GT(box.height(), lowest);
    EXPECT_LE(length(), view->height()) << "there is nothing to scroll yet";

    for (int line = 0; line < 30; ++line) press(Qt::Key_Return);
    const auto most = box.height();
    press(Qt::Key_Return);
    EXPECT_DOUBLE_EQ(box.height(), most);
    EXPECT_GT(length(), view->height());
    EXPECT_DOUBLE_EQ(view->property("contentY").toReal(), length() - view->height())
        << "the line with the cursor is seen";
}

TEST_F(BoxOfText, ALineEndWithShiftTakesThePlaceOfWhatIsSelected)
{
    press(Qt::Key_A);
    press(Qt::Key_B);
    press(Qt::Key_Left, Qt::ShiftModifier);
    press(Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_C);
    EXPECT_EQ(property("typed").toString(), QStringLiteral("a\nc"));
}

}  // namespace

}  // namespace larkspan
