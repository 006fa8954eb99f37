#include <csignal>

#include "TrayTest.h"

namespace larkspan::adapters {
namespace {

using peers::TrayHost;
using peers::turnFor;
using peers::turnUntil;
using namespace std::chrono_literals;

class WatcherTest : public TrayTest {};

TEST_F(WatcherTest, AnItemIsSeenByThePanelThatIsThere)
{
    TrayHost host(bus);

    show();

    EXPECT_TRUE(host.seesItem());
    EXPECT_TRUE(turnUntil([&] { return item.hasHost(); }));
    EXPECT_EQ(host.registrations(), 1);
}

TEST_F(WatcherTest, AnItemIsSeenByAPanelThatComesLater)
{
    item.setButton({.symbolName = "checkmark.circle.fill", .toolTip = "All is well"});
    show();
    turnFor(50ms);
    ASSERT_FALSE(item.hasHost());

    TrayHost host(bus);

    EXPECT_TRUE(host.seesItem());
    EXPECT_TRUE(turnUntil([&] { return item.hasHost(); }));
    EXPECT_EQ(host.item().value("ToolTip").toArray().at(2), "All is well");
}

TEST_F(WatcherTest, APanelThatReturnsSeesTheItemAgain)
{
    show();
    item.setMenu(menuOf({}));
    auto host = panel();
    ASSERT_TRUE(turnUntil([&] { return item.hasHost(); }));

    int changes = 0;
    item.onShownChanged([&] { ++changes; });
    host.reset();
    EXPECT_TRUE(turnUntil([&] { return !item.hasHost(); }));
    EXPECT_EQ(changes, 1);
    host = panel();

    EXPECT_TRUE(turnUntil([&] { return item.hasHost(); }));
    EXPECT_EQ(host->registrations(), 1);
    EXPECT_EQ(host->rows().size(), 8);
}

TEST_F(WatcherTest, OnANewBusAnItemIsSeenAgainWithItsMenu)
{
    show();
    item.setMenu(menuOf({page("p1", "Shop")}));
    auto host = panel();
    ASSERT_TRUE(turnUntil([&] { return item.hasHost(); }));

    bus.stop();
    host.reset();
    EXPECT_TRUE(turnUntil([&] { return !item.hasHost(); }));
    bus.start();
    host = std::make_unique<TrayHost>(bus);

    EXPECT_TRUE(host->seesItem());
    EXPECT_TRUE(turnUntil([&] { return item.hasHost(); }));
    const auto rows = host->rows();
    ASSERT_EQ(rows.size(), 9);
    host->click(rows.at(3).toArray().at(0).toInt());
    ASSERT_TRUE(turnUntil([&] { return !performed.empty(); }));
    EXPECT_EQ(performed.front().representedObject, "p1");
}

TEST_F(WatcherTest, BeforeItIsShownAnItemIsOnNoPanel)
{
    TrayHost host(bus);

    item.setButton({.symbolName = "checkmark.circle.fill"});
    item.setMenu(menuOf({}));
    turnFor(50ms);

    EXPECT_EQ(host.registrations(), 0);
}

TEST_F(WatcherTest, AListThatNobodyShowsIsNoHost)
{
    TrayHost host(bus, false);
    show();
    ASSERT_TRUE(host.seesItem());
    turnFor(50ms);
    ASSERT_FALSE(item.hasHost());
    int changes = 0;
    QObject::connect(&item, &StatusNotifierItem::hasHostChanged, [&] { ++changes; });

    host.setHasHost(true);
    EXPECT_TRUE(turnUntil([&] { return item.hasHost(); }));
    host.setHasHost(false);
    EXPECT_TRUE(turnUntil([&] { return !item.hasHost(); }));

    EXPECT_EQ(changes, 2);
}

TEST_F(WatcherTest, APanelThatDoesNotAnswerHoldsUpNothing)
{
    TrayHost host(bus);
    host.signal(SIGSTOP);
    const auto begin = std::chrono::steady_clock::now();

    show();
    item.setButton({.symbolName = "checkmark.circle.fill"});
    item.setMenu(menuOf({page("p1", "Shop")}));

    EXPECT_LT(std::chrono::steady_clock::now() - begin, 1s);
    host.signal(SIGCONT);
    EXPECT_TRUE(host.seesItem());
}

TEST_F(WatcherTest, WithoutAPanelNothingHappens)
{
    show();
    item.setButton({.symbolName = "checkmark.circle.fill"});
    item.setMenu(menuOf({page("p1", "Shop")}));
    turnFor(50ms);

    EXPECT_FALSE(item.hasHost());
    EXPECT_TRUE(performed.empty());
}

TEST_F(WatcherTest, WithoutASessionBusNothingHappens)
{
    StatusNotifierItem lonely(none, appearance);

    lonely.show([](const auto&) { FAIL(); });
    lonely.setButton({.symbolName = "checkmark.circle.fill"});
    lonely.setMenu(menuOf({page("p1", "Shop")}));
    turnFor(50ms);

    EXPECT_FALSE(lonely.hasHost());
}

}  // namespace
}  // namespace larkspan::adapters
