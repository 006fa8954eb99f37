#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "Screen.h"
#include "api/KeychainHelper.h"

namespace larkspan {

namespace {

using namespace std::chrono_literals;
using platform::HttpResponse;
using Role = QAccessible::Role;

/// Pages, incidents, maintenances and the overview.
constexpr int requestsOfACycle = 4;

class DashboardOnScreen : public testing::Test, public Screen {
protected:
    void showPages(int count)
    {
        std::vector<std::string> ids;
        for (int number = 0; number < count; ++number) ids.push_back("page-" + std::to_string(number));
        servePages(ids, {});
        refresh();
        settle();
    }

    void fail()
    {
        transport.script(pagesURL, 503, "");
        refresh();
        settle();
    }

    QQuickItem& list() const { return item(Role::List, QStringLiteral("Status Pages")); }
    int currentRow() const { return list().property("currentIndex").toInt(); }
};

TEST_F(DashboardOnScreen, EveryTextIsShownAsItStands)
{
    showPages(3);
    fail();
    int texts = 0;
    visit([&texts](QQuickItem& item) {
        if (!item.inherits("QQuickText")) return;
        ++texts;
        EXPECT_EQ(item.property("textFormat").toInt(), 0) << item.property("text").toString().toStdString();
    });
    EXPECT_GT(texts, 8);
}

TEST_F(DashboardOnScreen, EveryControlHasANameAndARole)
{
    showPages(2);
    fail();
    int controls = 0;
    visit([&controls](QQuickItem& item) {
        if (!item.activeFocusOnTab() || !item.isVisible()) return;
        ++controls;
        const auto* interface = QAccessible::queryAccessibleInterface(&item);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << item.metaObject()->className();
        EXPECT_NE(interface->role(), Role::NoRole);
    });
    EXPECT_GE(controls, 5);
}

TEST_F(DashboardOnScreen, ARowIsAListItemNamedByItsPageAndDescribedByItsStatus)
{
    servePages({"a"}, {{"a", "major-outage"}});
    refresh();
    settle();
    for (const auto& thing : things()) {
        if (thing.role == Role::ListItem) {
            EXPECT_EQ(thing.name, QStringLiteral("a"));
            EXPECT_EQ(thing.description, QStringLiteral("Down"));
        }
    }
    EXPECT_EQ(names(Role::ListItem), QStringList{"a"});
}

TEST_F(DashboardOnScreen, NamesThatLookLikeMarkupAreShownLiterally)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "<b>Bold</b> &amp; <img src='http://x/'>"}])");
    transport.script(overviewURL, 500, "");
    refresh();
    settle();
    EXPECT_EQ(names(Role::ListItem), QStringList{"<b>Bold</b> &amp; <img src='http://x/'>"});
    EXPECT_TRUE(names(Role::StaticText).contains(QStringLiteral("<b>Bold</b> &amp; <img src='http://x/'>")));
}

TEST_F(DashboardOnScreen, AScreenReaderMeetsTheRowsInTheirOrderAlsoAfterTheyAreReused)
{
    servePages({"a", "b", "c"}, {});
    refresh();
    settle();
    servePages({}, {});
    refresh();
    settle();
    servePages({"c", "a", "b"}, {});
    refresh();
    settle();
    EXPECT_EQ(names(Role::ListItem), (QStringList{"c", "a", "b"}));
}

TEST_F(DashboardOnScreen, LoadingIsAProgressIndicatorWithItsWords)
{
    state->refreshNow();
    settle();
    EXPECT_EQ(names(Role::ProgressBar), QStringList{"Loading Dashboard..."}) << "one indicator is enough";
    EXPECT_TRUE(shows(QStringLiteral("Refreshing...")));
}

TEST_F(DashboardOnScreen, AMissingKeyIsToldAndRetryWorksFromTheKeyboard)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    refresh();
    settle();
    EXPECT_TRUE(shows(QStringLiteral("Couldn\u2019t Refresh")));
    EXPECT_TRUE(shows(QStringLiteral("API key is missing.")));

    api::KeychainHelper::saveAPIKey(credentials, "k");
    servePages({"a"}, {});
    item(Role::Button, QStringLiteral("Retry")).forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(names(Role::ListItem), QStringList{"a"});
}

TEST_F(DashboardOnScreen, ReturnPressesAButtonToo)
{
    fail();
    const int before = requestCount();
    item(Role::Button, QStringLiteral("Retry")).forceActiveFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(requestCount(), before + 1);
}

TEST_F(DashboardOnScreen, F5AndCtrlRRefresh)
{
    showPages(1);
    const int before = requestCount();
    press(Qt::Key_F5);
    EXPECT_EQ(requestCount(), before + requestsOfACycle);
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(requestCount(), before + 2 * requestsOfACycle);
}

TEST_F(DashboardOnScreen, CtrlQAsksTheProgramToEnd)
{
    int asked = 0;
    QObject::connect(&mainWindow, &MainWindow::quitRequested, &mainWindow, [&asked] { ++asked; });
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(asked, 1);
}

TEST_F(DashboardOnScreen, TheKeyboardMovesThroughTheRows)
{
    showPages(100);
    list().forceActiveFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(currentRow(), 1);
    press(Qt::Key_Up);
    EXPECT_EQ(currentRow(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(currentRow(), 99);
    press(Qt::Key_PageUp);
    EXPECT_LT(currentRow(), 99);
    press(Qt::Key_Home);
    EXPECT_EQ(currentRow(), 0);
    press(Qt::Key_PageDown);
    EXPECT_GT(currentRow(), 5);
}

TEST_F(DashboardOnScreen, ScrollPositionAndCurrentRowSurviveARefresh)
{
    showPages(100);
    list().forceActiveFocus();
    press(Qt::Key_End);
    press(Qt::Key_Up);
    const double position = list().property("contentY").toDouble();
    ASSERT_GT(position, 0);
    servePages(
        [] {
            std::vector<std::string> ids;
            for (int number = 0; number < 100; ++number) ids.push_back("page-" + std::to_string(number));
            return ids;
        }(),
        {{"page-98", "degraded"}});
    press(Qt::Key_F5);
    EXPECT_EQ(list().property("contentY").toDouble(), position);
    EXPECT_EQ(currentRow(), 98);
}

TEST_F(DashboardOnScreen, ATenThousandthRowCostsNoItem)
{
    showPages(10'000);
    EXPECT_LT(names(Role::ListItem).size(), 60);
}

TEST_F(DashboardOnScreen, AFailedRefreshIsToldOverTheLastGoodDataAndGoesAtOnceWhenItIsMended)
{
    showPages(2);
    fail();
    EXPECT_TRUE(shows(QStringLiteral("Refresh failed. Data may be stale.")));
    EXPECT_EQ(names(Role::ListItem).size(), 2);
    servePages({"a"}, {});
    refresh();
    settle();
    EXPECT_FALSE(shows(QStringLiteral("Refresh failed. Data may be stale.")));
}

TEST_F(DashboardOnScreen, TheFailureNoticeCoversNoRowThatCannotBeScrolledClearOfIt)
{
    showPages(100);
    fail();
    list().forceActiveFocus();
    press(Qt::Key_End);
    const auto& retry = item(Role::Button, QStringLiteral("Retry"));
    const auto& last = item(Role::ListItem, QStringLiteral("page-99"));
    const double noticeTop = retry.mapToScene({0, 0}).y();
    EXPECT_LE(last.mapToScene({0, last.height()}).y(), noticeTop);
}

TEST_F(DashboardOnScreen, EachRowThatTheKeyboardReachesIsClearOfTheFailureNotice)
{
    window().resize(480, 440);
    showPages(30);
    fail();
    list().forceActiveFocus(Qt::TabFocusReason);
    const auto& notice = item(Role::AlertMessage, QStringLiteral("Refresh failed. Data may be stale."));
    const double noticeTop = notice.mapToScene({0, 0}).y();
    const auto bottomOfRow = [this] {
        const auto& row = *window().activeFocusItem();
        return row.mapToScene({0, row.height()}).y();
    };
    for (int row = 1; row < 30; ++row) {
        press(Qt::Key_Down);
        ASSERT_EQ(currentRow(), row);
        EXPECT_LE(bottomOfRow(), noticeTop) << row;
    }
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    EXPECT_LE(bottomOfRow(), noticeTop);
}

TEST_F(DashboardOnScreen, TheRowOfTheKeyboardIsClearOfAFailureNoticeThatAppears)
{
    window().resize(480, 440);
    showPages(30);
    list().forceActiveFocus(Qt::TabFocusReason);
    for (int row = 1; row < 10; ++row) press(Qt::Key_Down);
    fail();
    const auto& notice = item(Role::AlertMessage, QStringLiteral("Refresh failed. Data may be stale."));
    const auto& row = *window().activeFocusItem();
    EXPECT_EQ(currentRow(), 9);
    EXPECT_LE(row.mapToScene({0, row.height()}).y(), notice.mapToScene({0, 0}).y());
}

TEST_F(DashboardOnScreen, RefreshNowIsDisabledWhileTheFirstPagesLoadAndEnabledWithPagesOnScreen)
{
    state->refreshNow();
    settle();
    EXPECT_FALSE(item(Role::Button, QStringLiteral("Refresh Now")).isEnabled());
    transport.answer(HttpResponse{.status = 200, .body = R"([{"id": "a", "name": "A"}])"});
    settle();
    transport.answer(HttpResponse{.status = 500, .body = ""});
    settle();
    state->refreshNow();
    settle();
    EXPECT_TRUE(item(Role::Button, QStringLiteral("Refresh Now")).isEnabled());
}

TEST_F(DashboardOnScreen, AnIntervalIsChosenFromTheKeyboardAndTheFocusComesBack)
{
    showPages(1);
    auto& button = item(Role::Button, QStringLiteral("Refresh Interval"));
    button.forceActiveFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(names(Role::MenuItem),
        (QStringList{"Every 30 seconds", "Every 1 minute", "Every 2 minutes", "Every 5 minutes"}));
    for (const auto& thing : things()) {
        if (thing.role != Role::MenuItem) continue;
        const auto shown = QAccessible::queryAccessibleInterface(thing.object)->state();
        EXPECT_FALSE(shown.checkable || shown.checked)
            << "the current choice is not marked: " << thing.name.toStdString();
    }
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(state->refreshInterval(), 60s);
    EXPECT_TRUE(button.hasActiveFocus());
}

TEST_F(DashboardOnScreen, EscapeClosesTheMenuAndGivesTheFocusBack)
{
    auto& button = item(Role::Button, QStringLiteral("Refresh Interval"));
    button.forceActiveFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Escape);
    EXPECT_TRUE(names(Role::MenuItem).isEmpty());
    EXPECT_TRUE(button.hasActiveFocus());
}

TEST_F(DashboardOnScreen, TabGoesThroughTheBarAndBackToTheCurrentRow)
{
    showPages(2);
    list().forceActiveFocus();
    QStringList order;
    for (int step = 0; step < 5; ++step) {
        press(Qt::Key_Tab);
        order << QAccessible::queryAccessibleInterface(window().activeFocusItem())->text(QAccessible::Name);
    }
    EXPECT_EQ(order, (QStringList{"Settings", "Refresh Interval", "Refresh Now", "Menu", "page-0"}));
}

struct Size {
    int width;
    int height;
    double points;
};

class DashboardAtSize : public DashboardOnScreen, public testing::WithParamInterface<Size> {
protected:
    DashboardAtSize()
    {
        window().resize(GetParam().width, GetParam().height);
        showPages(3);
        fail();
    }
};

TEST_P(DashboardAtSize, NothingOfTheBarLiesOverAnotherOrOutside)
{
    std::vector<QRectF> places;
    for (const auto& thing : things()) {
        auto* item = qobject_cast<QQuickItem*>(thing.object);
        const bool isInBar = item && item->isVisible() && item->mapToScene({0, 0}).y() < 40
            && (thing.role == Role::Button || thing.role == Role::Heading || thing.role == Role::StaticText)
            && !thing.name.isEmpty();
        if (isInBar) places.push_back(item->mapRectToScene({0, 0, item->width(), item->height()}));
    }
    ASSERT_GE(places.size(), 4u);
    for (std::size_t one = 0; one < places.size(); ++one) {
        EXPECT_TRUE(QRectF(0, 0, window().width(), window().height()).contains(places[one]));
        for (std::size_t other = one + 1; other < places.size(); ++other) {
            EXPECT_FALSE(places[one].intersects(places[other])) << one << " and " << other;
        }
    }
}

TEST_P(DashboardAtSize, TheFailureNoticeStaysInTheWindow)
{
    const auto& retry = item(Role::Button, QStringLiteral("Retry"));
    const auto& notice = item(Role::AlertMessage, QStringLiteral("Refresh failed. Data may be stale."));
    const auto place = notice.mapRectToScene({0, 0, notice.width(), notice.height()});
    EXPECT_GE(place.left(), 0);
    EXPECT_LE(place.right(), window().width());
    EXPECT_TRUE(place.contains(retry.mapRectToScene({0, 0, retry.width(), retry.height()})));
}

INSTANTIATE_TEST_SUITE_P(FromTheSmallestWindowUp, DashboardAtSize,
    testing::Values(Size{480, 440, 10}, Size{760, 600, 10}, Size{1600, 900, 10}));

}  // namespace

}  // namespace larkspan
