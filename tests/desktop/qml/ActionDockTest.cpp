#include <gtest/gtest.h>

#include "ChosenSize.h"
#include "IncidentsOnScreen.h"
#include "MaintenancesOnScreen.h"
#include "Measures.h"
#include "MonitorsOnScreen.h"

namespace larkspan {

namespace {

std::string paragraphs(int count)
{
    std::string text;
    for (int line = 0; line < count; ++line) text += "Paragraph " + std::to_string(line) + R"(\n\n)";
    return text;
}

/// A detail in the smallest window.
template <typename OnScreen>
class Small : public OnScreen {
protected:
    Small()
    {
        this->mainWindow.window().resize(480, 440);
        this->settle();
    }

    const QQuickItem& button(const char* name) const
    {
        return this->item(QAccessible::Button, QString::fromUtf8(name));
    }
    bool isInView(const QQuickItem& item) const
    {
        return QRectF(0, 0, 480, 440).contains(frameOf(item)) && item.isVisible();
    }
    /// The card around a button.
    const QQuickItem& cardOf(const char* name) const
    {
        const auto* card = &button(name);
        while (!card->property("isDivisible").isValid()) card = card->parentItem();
        return *card;
    }
};

class SmallIncident : public Small<IncidentsOnScreen> {
protected:
    void open(const std::string& message)
    {
        serve({incident("1", "Login errors", R"(, "message": ")" + message + "\"")});
        press(Qt::Key_F5);
        openFirst();
    }
    QQuickItem& description() const { return item(Role::List, QStringLiteral("Description")); }
};

TEST_F(SmallIncident, HasItsActionsAfterTheEndOfAShortMessage)
{
    mainWindow.window().resize(760, 900);
    open("Short.");
    EXPECT_EQ(gapBelow(item(Role::StaticText, QStringLiteral("Short.")), cardOf("Add Update")), 16 + 20);
}

TEST_F(SmallIncident, KeepsItsActionsAtTheBottomEdgeWhileALongMessageScrolls)
{
    open(paragraphs(100));
    const auto place = frameOf(cardOf("Add Update"));
    EXPECT_TRUE(isInView(cardOf("Add Update")));
    EXPECT_EQ(440 - place.bottom(), 12);
    description().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_EQ(frameOf(cardOf("Add Update")), place);
}

TEST_F(SmallIncident, HasHalfOfTheWindowForALongMessage)
{
    open(paragraphs(10));
    EXPECT_GE(frameOf(description()).height(), 220);
    EXPECT_TRUE(isInView(button("Add Update")));
}

TEST_F(SmallIncident, HidesNothingOfItsMessageBehindItsActions)
{
    open(paragraphs(100));
    EXPECT_LE(frameOf(description()).bottom(), frameOf(cardOf("Add Update")).top());
    description().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    const auto& last = item(Role::StaticText, QStringLiteral("Paragraph 99"));
    EXPECT_LE(frameOf(last).bottom(), frameOf(description()).bottom());
    EXPECT_GE(frameOf(last).top(), frameOf(description()).top());
}

TEST_F(SmallIncident, IsReadBeforeItsActions)
{
    open("Short.");
    QStringList read;
    for (const auto& thing : things()) read << thing.name;
    EXPECT_LT(read.indexOf(QStringLiteral("Timeline")), read.indexOf(QStringLiteral("Acknowledge")));
    EXPECT_LT(read.indexOf(QStringLiteral("Short.")), read.indexOf(QStringLiteral("Acknowledge")));
}

TEST_F(SmallIncident, HasTheFieldOfAnUpdateAndItsButtonInViewWhateverTheDescriptionsLength)
{
    for (const auto& message : {std::string("Short."), paragraphs(100)}) {
        open(message);
        choose("Add Update");
        const auto& field = item(Role::EditableText, QStringLiteral("Update"));
        EXPECT_TRUE(isInView(field)) << message.size();
        EXPECT_TRUE(isInView(button("Save Update"))) << message.size();
        EXPECT_LE(frameOf(field).bottom(), frameOf(button("Save Update")).top());
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
    }
}

class LargeSmallIncident : public LargeLetters, public SmallIncident {};

TEST_F(LargeSmallIncident, HasItsPrimaryActionInViewAndTheOthersAtTheEndOfItsContent)
{
    open(paragraphs(10));
    EXPECT_TRUE(isInView(button("Add Update")));
    EXPECT_EQ(names(Role::Button).count(QStringLiteral("Add Update")), 1);
    EXPECT_GE(frameOf(description()).height(), 440 / 3.0) << "the content has room, too";
    for (const auto* const name : {"Acknowledge", "Resolve", "Escalate"}) {
        item(Role::Button, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        settle();
        EXPECT_TRUE(isInView(button(name))) << name;
        EXPECT_LE(frameOf(button(name)).bottom(), frameOf(cardOf("Add Update")).top()) << name;
    }
}

TEST_F(LargeSmallIncident, HasTheFieldOfAnUpdateAndItsButtonInView)
{
    open(paragraphs(10));
    choose("Add Update");
    EXPECT_TRUE(isInView(item(Role::EditableText, QStringLiteral("Update"))));
    EXPECT_TRUE(isInView(button("Save Update")));
}

TEST_F(LargeSmallIncident, GrowsItsDotsWithTheLetters)
{
    EXPECT_EQ(partOf(item(Role::ListItem, QStringLiteral("Login errors")), "radius", 10)->width(), 20);
}

class LargeSmallMaintenance : public LargeLetters, public Small<MaintenancesOnScreen> {};

TEST_F(LargeSmallMaintenance, HasItsPrimaryActionInView)
{
    openFirst();
    EXPECT_TRUE(isInView(button("Start Maintenance")));
}

class LargeSmallMonitor : public LargeLetters, public Small<MonitorsOnScreen> {};

TEST_F(LargeSmallMonitor, HasItsPrimaryActionInView)
{
    choose("Monitor Details");
    EXPECT_TRUE(isInView(button("Pause Monitor")));
    EXPECT_EQ(names(Role::Button).count(QStringLiteral("Run Check")), 1);
}

class SmallMaintenance : public Small<MaintenancesOnScreen> {};

TEST_F(SmallMaintenance, HasItsDeletionSixteenPointsAndMoreFromItsNeighbour)
{
    openFirst();
    for (const int width : {480, 760, 1'600}) {
        mainWindow.window().resize(width, 900);
        settle();
        const auto& start = button("Start Maintenance");
        const auto& removal = button("Delete Maintenance");
        EXPECT_GE(std::max(gapBeside(start, removal), gapBelow(start, removal)), 16) << width;
    }
}

}  // namespace

}  // namespace larkspan
