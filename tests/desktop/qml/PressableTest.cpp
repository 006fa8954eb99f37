#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

#include "KitWindow.h"

namespace larkspan {

namespace {

struct Kind {
    std::string name;
    /// Of its type, and what it begins with.
    std::string qml;
    QAccessible::Role role;

    friend void PrintTo(const Kind& kind, std::ostream* stream) { *stream << kind.name; }
};

const auto& kinds()
{
    static const std::vector<Kind> all{
        {"Command", R"(CommandButton { text: "It"; %1 })", QAccessible::Button},
        {"Tool", R"(ToolbarButton { symbol: "plus"; help: "It"; %1 })", QAccessible::Button},
        {"RowOfALink", R"(LinkRow { property link given; link: given; text: "It"; Accessible.name: text; %1 })",
            QAccessible::Button},
        {"Switch", R"(Toggle { text: "It"; isOn: false; %1 })", QAccessible::CheckBox},
        {"Link", R"(LinkLabel { text: "It"; %1 })", QAccessible::Link},
        {"Plain", R"(Pressable { text: "It"; %1 })", QAccessible::Button},
    };
    return all;
}

/// Something that is pressed, in a row that is pressed itself, in a list that scrolls.
class WhateverIsPressed : public testing::TestWithParam<Kind>, public KitWindow {
protected:
    WhateverIsPressed()
        : KitWindow(QStringLiteral(R"(
            property int presses: 0
            property int rowPresses: 0
            property bool isEnabled: true
            Flickable {
                objectName: "view"
                anchors.fill: parent
                contentHeight: 2000
                CardRow {
                    width: 400
                    height: 200
                    index: 0
                    name: "Row"
                    onClicked: window.rowPresses += 1
                    contentItem: Item {
                        Item {
                            objectName: "other"
                            activeFocusOnTab: true
                        }
                        %1
                    }
                }
            })")
                  .arg(QString::fromStdString(GetParam().qml)
                          .arg(QStringLiteral("objectName: \"it\"; width: 100; height: 60; "
                                              "enabled: window.isEnabled; onClicked: window.presses += 1"))))
    {
    }

    QPoint place() { return it().mapToScene({it().width() / 2, it().height() / 2}).toPoint(); }
    QQuickItem& it() const { return item(QStringLiteral("it")); }
    int presses() const { return property("presses").toInt(); }

    void move(QPoint way)
    {
        QTest::mouseMove(&window(), way);
        settle();
    }
};

TEST_P(WhateverIsPressed, HasItsRoleAndItsName)
{
    auto* const access = QAccessible::queryAccessibleInterface(&it());
    EXPECT_EQ(access->role(), GetParam().role);
    EXPECT_EQ(access->text(QAccessible::Name), QStringLiteral("It"));
    EXPECT_TRUE(access->state().focusable);
    access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses(), 1);
}

TEST_P(WhateverIsPressed, IsPressedOnceByEachOfItsKeys)
{
    it().forceActiveFocus(Qt::TabFocusReason);
    int expected = 0;
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select}) {
        press(key);
        EXPECT_EQ(presses(), ++expected);
    }
    press(Qt::Key_A);
    EXPECT_EQ(presses(), expected);
}

TEST_P(WhateverIsPressed, TakesTheKeyboardWithAClick)
{
    item(QStringLiteral("other")).forceActiveFocus(Qt::TabFocusReason);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place());
    EXPECT_EQ(presses(), 1);
    EXPECT_TRUE(it().hasActiveFocus());
}

TEST_P(WhateverIsPressed, LeavesTheRowThatItStandsInUnpressed)
{
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place());
    EXPECT_EQ(property("rowPresses").toInt(), 0);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(300, 150));
    EXPECT_EQ(property("rowPresses").toInt(), 1);
}

TEST_P(WhateverIsPressed, IsNotPressedWhereThePointerIsLetGoBesideIt)
{
    QTest::mousePress(&window(), Qt::LeftButton, {}, place());
    EXPECT_TRUE(it().property("down").toBool());
    const auto beside = place() + QPoint(150, 0);
    move(beside);
    EXPECT_FALSE(it().property("down").toBool());
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, beside);
    EXPECT_EQ(presses(), 0);
}

TEST_P(WhateverIsPressed, IsPressedAlsoByAHandThatSlipsOrRestsOnIt)
{
    QTest::mousePress(&window(), Qt::LeftButton, {}, place());
    move(place() + QPoint(30, 0));
    QTest::qWait(1'000);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, place() + QPoint(30, 0));
    EXPECT_EQ(presses(), 1);
}

TEST_P(WhateverIsPressed, IsPressedTwiceByTwoQuickClicks)
{
    for (int count = 0; count < 2; ++count) QTest::mouseClick(&window(), Qt::LeftButton, {}, place());
    QTest::mouseDClick(&window(), Qt::LeftButton, {}, place());
    EXPECT_EQ(presses(), 4);
}

TEST_P(WhateverIsPressed, LetsTheListBeDraggedByIt)
{
    const auto begin = place();
    QTest::mousePress(&window(), Qt::LeftButton, {}, begin);
    for (int way = 5; way <= 60; way += 5) move(begin - QPoint(0, way));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, begin - QPoint(0, 60));
    EXPECT_EQ(presses(), 0);
    EXPECT_GT(item(QStringLiteral("view")).property("contentY").toReal(), 20);
}

TEST_P(WhateverIsPressed, TakesNeitherPointerNorKeyWhileItIsDisabled)
{
    it().forceActiveFocus(Qt::TabFocusReason);
    setProperty("isEnabled", false);
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place());
    move(place());
    EXPECT_EQ(presses(), 0);
    EXPECT_FALSE(it().property("hovered").toBool());
}

TEST_P(WhateverIsPressed, IsNotPressedByAnotherButtonOfTheMouse)
{
    QTest::mouseClick(&window(), Qt::RightButton, {}, place());
    EXPECT_EQ(presses(), 0);
}

INSTANTIATE_TEST_SUITE_P(EachKind, WhateverIsPressed, testing::ValuesIn(kinds()),
    [](const testing::TestParamInfo<Kind>& kind) { return kind.param.name; });

}  // namespace

}  // namespace larkspan
