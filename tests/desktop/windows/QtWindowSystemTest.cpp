#include "adapters/QtWindowSystem.h"

#include <QGuiApplication>
#include <QRasterWindow>
#include <QTimer>

#include <gtest/gtest.h>

#include "peers/EventLoop.h"
#include "peers/WindowManager.h"
#include "peers/X11Peer.h"

namespace larkspan::adapters {
namespace {

using peers::turnFor;
using peers::turnUntil;
using peers::X11Peer;
using namespace std::chrono_literals;

/// Minimises instead of closing, as the program's dashboard does, or lets the window close.
class Delegate final : public platform::WindowDelegate {
public:
    bool windowShouldClose() override
    {
        ++questions;
        if (grants) return true;
        if (window) window->miniaturize();
        return false;
    }

    void windowDidNotMiniaturize() override
    {
        ++refusals;
        if (hides) window->hide();
    }

    std::shared_ptr<platform::Window> window;
    bool grants = false;
    bool hides = false;
    int questions = 0;
    int refusals = 0;
};

class OneWindow : public testing::Test {
protected:
    OneWindow()
    {
        system.add(window);
        window.resize(400, 300);
        adopted = system.windows().front();
        delegate->window = adopted;
    }
    ~OneWindow() override { delegate->window.reset(); }

    void show()
    {
        window.show();
        ASSERT_TRUE(turnUntil([&] { return window.isExposed(); }));
    }
    xcb_window_t id() { return static_cast<xcb_window_t>(window.winId()); }
    bool reaches(X11Peer::State state)
    {
        return turnUntil([&] { return desktop.state(id()) == state; });
    }

    X11Peer desktop;
    QtWindowSystem system;
    QRasterWindow window;
    std::shared_ptr<platform::Window> adopted;
    std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
};

class WindowOnADesktop : public OneWindow {
protected:
    void SetUp() override
    {
        show();
        ASSERT_TRUE(turnUntil([&] { return window.isActive(); }));
    }

    peers::WindowManager windowManager;
};

class WindowWithoutAWindowManager : public OneWindow {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(turnUntil([&] { return !desktop.hasWindowManager(); }));
        show();
    }
};

TEST_F(WindowOnADesktop, CloseButtonAsksTheDelegateWhichMinimises)
{
    adopted->setDelegate(delegate);

    desktop.pressClose(id());

    EXPECT_TRUE(reaches(X11Peer::State::iconic));
    EXPECT_EQ(delegate->questions, 1);
    EXPECT_FALSE(adopted->isVisible());
    EXPECT_TRUE(adopted->canBecomeKeyWindow());
    turnFor(1200ms);
    EXPECT_EQ(delegate->refusals, 0);
}

TEST_F(WindowOnADesktop, ComesBackFromBeingMinimisedInFrontAndFocused)
{
    const auto other = desktop.showWindow();
    adopted->miniaturize();
    ASSERT_TRUE(reaches(X11Peer::State::iconic));
    ASSERT_TRUE(turnUntil([&] { return desktop.activeWindow() == other; }));

    system.activateIgnoringOtherApps();
    adopted->deminiaturize();
    adopted->makeKeyAndOrderFront();

    EXPECT_TRUE(reaches(X11Peer::State::normal));
    EXPECT_TRUE(turnUntil([&] { return desktop.activeWindow() == id() && window.isActive(); }));
    EXPECT_TRUE(adopted->isVisible());
}

TEST_F(WindowOnADesktop, ComesBackMaximisedIfItWasMaximised)
{
    window.showMaximized();
    ASSERT_TRUE(
        turnUntil([&] { return window.windowStates().testFlag(Qt::WindowMaximized) && window.width() > 1000; }));

    adopted->miniaturize();
    ASSERT_TRUE(reaches(X11Peer::State::iconic));
    adopted->deminiaturize();

    ASSERT_TRUE(reaches(X11Peer::State::normal));
    turnFor(100ms);
    EXPECT_TRUE(window.windowStates().testFlag(Qt::WindowMaximized));
    EXPECT_GT(window.width(), 1000);
}

TEST_F(WindowOnADesktop, TakesTheFocusFromAnotherProgramWhenAsked)
{
    const auto other = desktop.showWindow();
    ASSERT_TRUE(turnUntil([&] { return desktop.activeWindow() == other; }));

    adopted->makeKeyAndOrderFront();

    EXPECT_TRUE(turnUntil([&] { return desktop.activeWindow() == id(); }));
}

TEST_F(WindowOnADesktop, ThatWasHiddenIsShownAgain)
{
    window.hide();
    ASSERT_TRUE(turnUntil([&] { return !desktop.state(id()); }));
    EXPECT_FALSE(adopted->isVisible());

    adopted->deminiaturize();
    adopted->makeKeyAndOrderFront();

    EXPECT_TRUE(reaches(X11Peer::State::normal));
    EXPECT_TRUE(turnUntil([&] { return desktop.activeWindow() == id(); }));
}

TEST_F(WindowOnADesktop, EndsTheLaunchThatAskedForIt)
{
    system.setActivationToken("a-launcher-with-a-long-name/larkspan/1-1-host_TIME42");

    adopted->makeKeyAndOrderFront();
    adopted->makeKeyAndOrderFront();

    const QStringList expected{"remove: ID=a-launcher-with-a-long-name/larkspan/1-1-host_TIME42"};
    EXPECT_TRUE(turnUntil([&] { return desktop.endedLaunches() == expected; }));
    turnFor(50ms);
    EXPECT_EQ(desktop.endedLaunches(), expected);
}

TEST_F(WindowOnADesktop, TakesNoTokenThatIsTooLongToBeOne)
{
    system.setActivationToken(QString(1025, 'x'));

    adopted->makeKeyAndOrderFront();

    turnFor(200ms);
    EXPECT_EQ(desktop.endedLaunches(), QStringList());
}

TEST_F(WindowWithoutAWindowManager, StaysOnTheScreenWhenMinimisingIsRefused)
{
    adopted->miniaturize();

    EXPECT_TRUE(turnUntil([&] { return adopted->isVisible(); }));
    EXPECT_TRUE(window.isExposed());
}

TEST_F(WindowWithoutAWindowManager, ThatIsNotMinimisedIsHiddenByItsDelegateAndShownAgain)
{
    delegate->hides = true;
    adopted->setDelegate(delegate);

    window.close();

    ASSERT_TRUE(turnUntil([&] { return !adopted->isVisible(); }));
    ASSERT_TRUE(turnUntil([&] { return delegate->refusals == 1 && !window.isExposed(); }));

    adopted->deminiaturize();
    adopted->makeKeyAndOrderFront();

    EXPECT_TRUE(turnUntil([&] { return adopted->isVisible() && window.isExposed(); }));
    EXPECT_EQ(delegate->refusals, 1);
}

TEST_F(WindowWithoutAWindowManager, ClosesWithoutADelegate)
{
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowWithoutAWindowManager, ClosesWhenTheDelegateGrantsIt)
{
    delegate->grants = true;
    adopted->setDelegate(delegate);

    window.close();

    EXPECT_EQ(delegate->questions, 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowWithoutAWindowManager, ForgetsADelegateThatIsGone)
{
    adopted->setDelegate(delegate);
    delegate->window.reset();
    delegate.reset();

    window.close();

    EXPECT_FALSE(window.isVisible());
    delegate = std::make_shared<Delegate>();
}

TEST_F(WindowWithoutAWindowManager, ItsClosingDoesNotEndTheProgram)
{
    bool ended = true;
    QTimer::singleShot(100ms, [&] { window.close(); });
    QTimer::singleShot(400ms, [&] {
        ended = false;
        QCoreApplication::exit(0);
    });

    QCoreApplication::exec();

    EXPECT_FALSE(ended);
}

TEST_F(WindowWithoutAWindowManager, TerminatingDoesNotAskTheDelegate)
{
    adopted->setDelegate(delegate);
    QTimer::singleShot(0, [&] { system.terminate(); });
    QTimer::singleShot(5s, [] { QCoreApplication::exit(9); });

    EXPECT_EQ(QCoreApplication::exec(), 0);

    EXPECT_EQ(delegate->questions, 0);
}

TEST_F(WindowWithoutAWindowManager, TerminatingBeforeTheEventLoopEndsItAtOnce)
{
    system.terminate();
    QTimer::singleShot(5s, [] { QCoreApplication::exit(9); });

    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(WindowWithoutAWindowManager, EndOfTheSessionIsNotHeldUpByAWindowThatMinimises)
{
    adopted->setDelegate(delegate);
    QTimer::singleShot(0, [] {
        // The event that Qt sends when the session manager ends the program.
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        EXPECT_TRUE(quit.isAccepted());
    });
    QTimer::singleShot(5s, [] { QCoreApplication::exit(9); });

    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(delegate->questions, 0);
}

TEST(QtWindowSystem, HoldsNoWindowThatIsLostAlsoIfNobodyAsksForTheList)
{
    QtWindowSystem system;
    auto window = std::make_unique<QRasterWindow>();
    system.add(*window);
    const std::weak_ptr<platform::Window> adopted = system.windows().front();

    window.reset();

    EXPECT_TRUE(adopted.expired());
}

TEST(QtWindowSystem, ListsItsWindowsInTheOrderOfTheirMakingWhileTheyExist)
{
    QtWindowSystem system;
    QRasterWindow first;
    auto second = std::make_unique<QRasterWindow>();
    second->setFlags(Qt::ToolTip | Qt::WindowDoesNotAcceptFocus);
    QRasterWindow third;
    for (QWindow* const window : std::initializer_list<QWindow*>{&first, second.get(), &third}) system.add(*window);

    const auto windows = system.windows();
    ASSERT_EQ(windows.size(), 3U);
    EXPECT_TRUE(windows[0]->canBecomeKeyWindow());
    EXPECT_FALSE(windows[0]->isVisible());
    EXPECT_FALSE(windows[1]->canBecomeKeyWindow());

    second.reset();

    EXPECT_EQ(system.windows(), (std::vector{windows[0], windows[2]}));
    // A holder of a lost window may still call it.
    windows[1]->miniaturize();
    windows[1]->deminiaturize();
    windows[1]->makeKeyAndOrderFront();
    EXPECT_FALSE(windows[1]->isVisible());
    EXPECT_FALSE(windows[1]->canBecomeKeyWindow());
}

}  // namespace
}  // namespace larkspan::adapters
