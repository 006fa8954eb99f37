#include <QClipboard>
#include <QGuiApplication>

#include "ChosenSize.h"
#include "Measures.h"
#include "SettingsOnScreen.h"

namespace larkspan {

namespace {

TEST_F(SettingsOnScreen, TheFieldIsReadyForAPaste)
{
    openWithoutKey();
    EXPECT_TRUE(field().hasActiveFocus());
}

class SmallSettings : public LargeLetters, public SettingsOnScreen {
protected:
    SmallSettings()
    {
        window().resize(480, 440);
        settle();
    }

    bool isSeen(const QQuickItem& part) const
    {
        const auto& title = item(Role::Heading, QStringLiteral("Settings"));
        return frameOf(part).top() > frameOf(title).bottom() && frameOf(part).bottom() <= 420;
    }
};

TEST_F(SmallSettings, TheFieldIsSeenTogetherWithItsButtonWhoeverOpensThem)
{
    openWithoutKey();
    ASSERT_TRUE(field().hasActiveFocus());
    EXPECT_TRUE(isSeen(field()));
    EXPECT_TRUE(isSeen(button(saveLabel)));
    press(Qt::Key_Escape);
    const auto gear = frameOf(item(Role::Button, QStringLiteral("Settings"))).center().toPoint();
    QTest::mouseClick(&window(), Qt::LeftButton, {}, gear);
    settle();
    ASSERT_TRUE(field().hasActiveFocus());
    EXPECT_TRUE(isSeen(field()));
    EXPECT_TRUE(isSeen(button(saveLabel)));
}

TEST_F(SmallSettings, BothComeIntoViewAgainWithTheFirstLetter)
{
    openWithoutKey();
    auto* view = field().parentItem();
    while (!view->inherits("QQuickFlickable")) view = view->parentItem();
    view->setProperty("contentY", view->property("contentHeight").toReal() - view->height());
    settle();
    ASSERT_FALSE(isSeen(field()));
    QTest::keyClick(&window(), 'k');
    settle();
    EXPECT_TRUE(isSeen(button(saveLabel)));
    EXPECT_TRUE(isSeen(field()));
}

TEST_F(SettingsOnScreen, UntilTheKeyringHasAnsweredItIsShownThatItIsAskedAndNoFieldIsOffered)
{
    const auto looking = QStringLiteral("Looking for your API key...");
    api::KeychainHelper::deleteAPIKey(credentials);
    dashboard->openSettings();
    settleWithoutTheClient();
    EXPECT_TRUE(names(Role::ProgressBar).contains(looking));
    EXPECT_FALSE(hasField());
    EXPECT_FALSE(hasButton(saveLabel));
    EXPECT_EQ(focused(), QStringLiteral("Done"));

    settle();
    EXPECT_FALSE(shows(looking));
    EXPECT_TRUE(field().hasActiveFocus());
}

TEST_F(SettingsOnScreen, APasteThatIsLongerThanAnyKeyIsRefusedInWords)
{
    QGuiApplication::clipboard()->setText(QString(100'000, u'k'));
    openWithoutKey();
    press(Qt::Key_V, Qt::ControlModifier);
    choose(saveLabel);
    EXPECT_TRUE(shows(QStringLiteral("Invalid or unauthorized API key.")));
    EXPECT_EQ(requestCount(), 0);
}

TEST_F(SettingsOnScreen, APasteOfTheLongestKeyIsStoredWhole)
{
    QGuiApplication::clipboard()->setText(QString(4096, u'k'));
    openWithoutKey();
    answerKey(200);
    press(Qt::Key_V, Qt::ControlModifier);
    choose(saveLabel);
    EXPECT_EQ(api::KeychainHelper::readAPIKey(credentials), std::string(4096, 'k'));
}

TEST_F(SettingsOnScreen, TheKeyIsNowhereInTheAccessibilityTree)
{
    openWithoutKey();
    const auto secret = QStringLiteral("secret");
    type(secret);
    for (const auto& thing : things()) {
        auto* const interface = QAccessible::queryAccessibleInterface(thing.object);
        for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help}) {
            EXPECT_FALSE(interface->text(kind).contains(secret)) << kind << " of " << thing.name.toStdString();
        }
        if (auto* const text = interface->textInterface()) {
            EXPECT_FALSE(text->text(0, text->characterCount()).contains(secret)) << thing.name.toStdString();
            int start = 0;
            int end = 0;
            EXPECT_FALSE(text->textAtOffset(0, QAccessible::WordBoundary, &start, &end).contains(secret));
        }
        if (auto* const value = interface->valueInterface()) {
            EXPECT_FALSE(value->currentValue().toString().contains(secret)) << thing.name.toStdString();
        }
    }
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&field())->state().passwordEdit);
}

TEST_F(SettingsOnScreen, TheKeyCannotBeCopiedOutOfTheField)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    openWithoutKey();
    type(QStringLiteral("secret"));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

TEST_F(SettingsOnScreen, AKeyIsPastedWithSurroundingBlanksAndNewlinesAndStoredWithout)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("  secret \n"));
    openWithoutKey();
    answerKey(200);
    press(Qt::Key_V, Qt::ControlModifier);
    choose(saveLabel);
    EXPECT_EQ(api::KeychainHelper::readAPIKey(credentials), "secret");
}

TEST_F(SettingsOnScreen, KeysThatArriveAllAtOnceGoWhereTheyWouldGoOneByOne)
{
    openWithoutKey();
    answerKey(200);
    // As a password manager types them.
    for (const auto letter : {'k', 'e', 'y'}) QTest::keyClick(&window(), letter);
    QTest::keyClick(&window(), Qt::Key_Tab);
    QTest::keyClick(&window(), Qt::Key_Return);
    settle();
    EXPECT_EQ(api::KeychainHelper::readAPIKey(credentials), "key");
    EXPECT_TRUE(isOpen());
}

}  // namespace

}  // namespace larkspan
