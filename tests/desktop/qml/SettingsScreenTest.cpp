#include "SettingsOnScreen.h"

namespace larkspan {

namespace {

TEST_F(SettingsOnScreen, WithoutAKeyEveryTextIsThereInItsWords)
{
    openWithoutKey();
    const auto* const wish
        = "Create an API key in your Kestrune dashboard with read access to status pages, incidents, "
          "maintenances, and monitors.";
    for (const auto* text : {"Settings", "Connect to your Kestrune account", "Kestrune API Key",
             "Your API key is stored securely in the Keychain.", "About",
             "Larkspan monitors your Kestrune status pages from the menu bar.", wish}) {
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    }
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&field())->text(QAccessible::Description),
        QStringLiteral("Paste your API key here"));
    EXPECT_FALSE(shows(savedText));
}

TEST_F(SettingsOnScreen, TheDemosKeyStandsUnderTheFieldForAsLongAsThatIsThere)
{
    const auto hint = QStringLiteral("The API key of this demo is \"sesame\".");
    dashboard->demoKey = "sesame";
    open();
    EXPECT_FALSE(shows(hint));
    choose(deleteLabel);
    choose(QStringLiteral("Delete"));
    ASSERT_TRUE(hasField());
    EXPECT_TRUE(shows(hint));
}

TEST_F(SettingsOnScreen, TheProgramTellsNoKey)
{
    openWithoutKey();
    ASSERT_TRUE(hasField());
    for (const auto& thing : things())
        EXPECT_FALSE(thing.name.contains(QStringLiteral("demo"))) << thing.name.toStdString();
}

TEST_F(SettingsOnScreen, WithoutAKeyTheButtonsAreSaveAndDone)
{
    openWithoutKey();
    EXPECT_FALSE(button(saveLabel).isEnabled());
    EXPECT_FALSE(hasButton(deleteLabel));
    EXPECT_TRUE(button(QStringLiteral("Done")).isEnabled());
}

TEST_F(SettingsOnScreen, WithAKeyARowStandsInPlaceOfTheField)
{
    open();
    EXPECT_TRUE(shows(savedText));
    EXPECT_FALSE(hasField());
    EXPECT_FALSE(shows(QStringLiteral("Your API key is stored securely in the Keychain.")));
    EXPECT_FALSE(shows(QStringLiteral("Connected")));
    EXPECT_FALSE(hasButton(saveLabel));
    EXPECT_TRUE(hasButton(deleteLabel));
}

TEST_F(SettingsOnScreen, TypingEnablesTheButtonButWhiteSpaceAloneDoesNot)
{
    openWithoutKey();
    type(QStringLiteral("  "));
    EXPECT_FALSE(button(saveLabel).isEnabled());
    type(QStringLiteral("k"));
    EXPECT_TRUE(button(saveLabel).isEnabled());
}

TEST_F(SettingsOnScreen, TheAmpersandOfAButtonIsShownAndIsNoKey)
{
    openWithoutKey();
    type(QStringLiteral("secret"));
    bool isShown = false;
    visit([&](QQuickItem& item) {
        if (item.inherits("QQuickText") && item.isVisible()) isShown |= item.property("text") == saveLabel;
    });
    EXPECT_TRUE(isShown);
    // Qt assigns a button its shortcut when it becomes visible.
    auto& save = button(saveLabel);
    save.setVisible(false);
    save.setVisible(true);
    const int requests = requestCount();
    press(Qt::Key_Space, Qt::AltModifier);
    EXPECT_EQ(requestCount(), requests);
    EXPECT_TRUE(button(saveLabel).isEnabled());
}

TEST_F(SettingsOnScreen, ReturnInTheFieldDoesNothing)
{
    openWithoutKey();
    type(QStringLiteral("secret"));
    const int before = requestCount();
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    EXPECT_EQ(requestCount(), before);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(field().hasActiveFocus());
}

TEST_F(SettingsOnScreen, WhileAKeyIsVerifiedTheButtonIsDisabledAndHasAMovingMarkAndNothingStandsUnderTheField)
{
    openWithoutKey();
    type(QStringLiteral("secret"));
    choose(saveLabel);
    ASSERT_EQ(requestCount(), 1);
    EXPECT_FALSE(shows(QStringLiteral("Verifying...")));
    EXPECT_FALSE(button(saveLabel).isEnabled());
    EXPECT_TRUE(button(saveLabel).isAncestorOf(&item(Role::ProgressBar, QStringLiteral("In progress"))));
    EXPECT_FALSE(focused().isEmpty());
}

TEST_F(SettingsOnScreen, WhatCameOfTheVerificationStandsInTheRowOfTheSavedKey)
{
    openWithoutKey();
    answerKey(200);
    type(QStringLiteral("secret"));
    choose(saveLabel);
    const auto& saved = item(Role::StaticText, savedText);
    const auto& connected = item(Role::StaticText, QStringLiteral("Connected"));
    const auto middleOf = [](const QQuickItem& text) { return text.mapToScene({0, text.height() / 2}).y(); };
    EXPECT_EQ(middleOf(saved), middleOf(connected));
    EXPECT_GT(connected.mapToScene({0, 0}).x(), saved.mapToScene({saved.width(), 0}).x());
}

TEST_F(SettingsOnScreen, AnAcceptedKeyIsStoredAndTheFieldGivesWayToConnected)
{
    openWithoutKey();
    answerKey(200);
    type(QStringLiteral(" secret "));
    choose(saveLabel);
    EXPECT_EQ(api::KeychainHelper::readAPIKey(credentials), "secret");
    EXPECT_TRUE(shows(savedText));
    EXPECT_TRUE(shows(QStringLiteral("Connected")));
    EXPECT_FALSE(hasField());
    EXPECT_EQ(focused(), QStringLiteral("Done"));
}

TEST_F(SettingsOnScreen, TheFieldThatComesBackAfterADeletionIsEmpty)
{
    openWithoutKey();
    answerKey(200);
    type(QStringLiteral("secret"));
    choose(saveLabel);
    choose(deleteLabel);
    choose(QStringLiteral("Delete"));
    EXPECT_TRUE(hasField());
    EXPECT_EQ(field().property("text").toString(), QString());
    EXPECT_FALSE(button(saveLabel).isEnabled());
}

struct RefusalRow {
    int status;
    QString message;
};

class RefusedOnScreen : public SettingsOnScreen, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedOnScreen, TellsWhyKeepsTheFieldsTextAndForgetsTheMessageWithAnEdit)
{
    openWithoutKey();
    answerKey(GetParam().status);
    type(QStringLiteral("secret"));
    choose(saveLabel);
    EXPECT_TRUE(shows(GetParam().message));
    EXPECT_EQ(field().property("text").toString(), QStringLiteral("secret"));
    EXPECT_TRUE(button(saveLabel).isEnabled());
    type(QStringLiteral("s"));
    EXPECT_FALSE(shows(GetParam().message));
}

INSTANTIATE_TEST_SUITE_P(EachAnswer, RefusedOnScreen,
    testing::Values(RefusalRow{401, QStringLiteral("Invalid or unauthorized API key.")},
        RefusalRow{503, QStringLiteral("Kestrune server error. Try again later.")},
        RefusalRow{404, QStringLiteral("Could not verify API key. Please try again.")}));

TEST_F(SettingsOnScreen, AStoreThatTakesNothingIsTold)
{
    openWithoutKey();
    answerKey(200);
    credentials.refusesToAdd = true;
    type(QStringLiteral("secret"));
    choose(saveLabel);
    EXPECT_TRUE(shows(QStringLiteral("Could not save API key to Keychain.")));
    EXPECT_TRUE(hasField());
}

TEST_F(SettingsOnScreen, ADeletionIsConfirmedFirstWithCancelInFocus)
{
    open();
    choose(deleteLabel);
    EXPECT_TRUE(asksToDelete());
    EXPECT_TRUE(shows(QStringLiteral("Are you sure you want to delete your API key? You will need to enter it again "
                                     "to use the app.")));
    EXPECT_EQ(focused(), QStringLiteral("Cancel"));
}

TEST_F(SettingsOnScreen, EscapeClosesTheConfirmationAlone)
{
    open();
    choose(deleteLabel);
    press(Qt::Key_Escape);
    EXPECT_FALSE(asksToDelete());
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(focused(), deleteLabel);
    EXPECT_TRUE(api::KeychainHelper::readAPIKey(credentials).has_value());
}

TEST_F(SettingsOnScreen, CancelKeepsTheKey)
{
    open();
    choose(deleteLabel);
    press(Qt::Key_Return);
    EXPECT_FALSE(asksToDelete());
    EXPECT_TRUE(api::KeychainHelper::readAPIKey(credentials).has_value());
}

TEST_F(SettingsOnScreen, DeleteDeletesTheKeyAndTheAccountAndMakesTheFieldReady)
{
    servePages({"a"}, {});
    refresh();
    open();
    choose(deleteLabel);
    choose(QStringLiteral("Delete"));
    EXPECT_FALSE(api::KeychainHelper::readAPIKey(credentials).has_value());
    EXPECT_TRUE(state->statusPages->empty());
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(field().hasActiveFocus());
}

class ClosedOnScreen : public SettingsOnScreen, public testing::WithParamInterface<Qt::Key> {};

TEST_P(ClosedOnScreen, StartsOneCycleAndGivesTheFocusBackToTheGear)
{
    servePages({"a"}, {});
    open();
    if (GetParam() == Qt::Key_Space) button(QStringLiteral("Done")).forceActiveFocus(Qt::TabFocusReason);
    const int before = requestCount();
    press(GetParam());
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(requestCount(), before + 4);
    EXPECT_TRUE(item(Role::Button, QStringLiteral("Settings")).hasActiveFocus());
}

INSTANTIATE_TEST_SUITE_P(ByEscapeAndByDone, ClosedOnScreen, testing::Values(Qt::Key_Escape, Qt::Key_Space));

TEST_F(SettingsOnScreen, TheFocusGoesBackToOpenSettingsWhereThatOpenedIt)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    refresh();
    settle();
    choose(QStringLiteral("Open Settings"));
    ASSERT_TRUE(isOpen());
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("Open Settings"));
}

TEST_F(SettingsOnScreen, IsADialogThatTabDoesNotLeave)
{
    open();
    ASSERT_TRUE(isOpen());
    for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier}) {
        QStringList met;
        for (int step = 0; step < 6; ++step) {
            press(Qt::Key_Tab, modifier);
            met << focused();
        }
        met.removeDuplicates();
        met.sort();
        EXPECT_EQ(met, (QStringList{deleteLabel, "Done"}));
    }
}

TEST_F(SettingsOnScreen, ReopenedItShowsTheSavedKeyWithoutAMarker)
{
    openWithoutKey();
    answerKey(200);
    type(QStringLiteral("secret"));
    choose(saveLabel);
    press(Qt::Key_Escape);
    open();
    EXPECT_TRUE(shows(savedText));
    EXPECT_FALSE(shows(QStringLiteral("Connected")));
}

TEST_F(SettingsOnScreen, ReopenedAfterARefusalTheFieldIsEmptyAgain)
{
    openWithoutKey();
    answerKey(401);
    type(QStringLiteral("secret"));
    choose(saveLabel);
    press(Qt::Key_Escape);
    open();
    EXPECT_EQ(field().property("text").toString(), QString());
    EXPECT_FALSE(shows(QStringLiteral("Invalid or unauthorized API key.")));
}

}  // namespace

}  // namespace larkspan
