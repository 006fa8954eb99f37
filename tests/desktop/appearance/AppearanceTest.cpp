#include "adapters/Appearance.h"

#include <QGuiApplication>
#include <QPalette>
#include <QProcessEnvironment>
#include <QThread>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>

#include "peers/EventLoop.h"
#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {
namespace {

using peers::turnFor;
using peers::turnUntil;
using namespace std::chrono_literals;

/// A desktop's portal with these settings, each as GROUP/KEY=VALUE.
class Portal : public peers::Peer {
public:
    Portal(const peers::PrivateBus& bus, const QStringList& settings)
        : Peer("/usr/bin/python3", QStringList{LARKSPAN_SETTINGS_PORTAL} + settings, environment(bus))
    {
        hear();
    }

    void change(const QByteArray& setting)
    {
        tell(setting + '\n');
        hear();
    }

private:
    static QProcessEnvironment environment(const peers::PrivateBus& bus)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
        return environment;
    }
};

class AppearanceTest : public testing::Test {
protected:
    ~AppearanceTest() override { usePalette(Qt::white, Qt::black); }

    static void usePalette(const QColor& window, const QColor& text)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        QGuiApplication::setPalette(palette);
    }

    peers::PrivateBus bus;
    const SessionBus session{bus.address()};
};

TEST_F(AppearanceTest, IsDarkWhenTheDesktopPrefersDark)
{
    const Portal portal(bus, {"org.freedesktop.appearance/color-scheme=1"});
    const Appearance appearance(session);

    EXPECT_TRUE(turnUntil([&] { return appearance.isDark(); }));
}

TEST_F(AppearanceTest, IsLightWhenTheDesktopPrefersLightWhateverThePalette)
{
    const Portal portal(bus, {"org.freedesktop.appearance/color-scheme=2"});
    usePalette(Qt::black, Qt::white);
    const Appearance appearance(session);
    ASSERT_TRUE(appearance.isDark());

    EXPECT_TRUE(turnUntil([&] { return !appearance.isDark(); }));
}

TEST_F(AppearanceTest, FollowsTheDesktopLive)
{
    Portal portal(bus, {"org.freedesktop.appearance/color-scheme=2"});
    const Appearance appearance(session);
    int changes = 0;
    QObject::connect(&appearance, &Appearance::isDarkChanged, [&] { ++changes; });
    turnFor(100ms);
    ASSERT_FALSE(appearance.isDark());

    portal.change("org.freedesktop.appearance/color-scheme=1");

    EXPECT_TRUE(turnUntil([&] { return appearance.isDark(); }));
    EXPECT_EQ(changes, 1);
}

struct LookRow {
    const char* setting;
    bool isHighContrast;
    bool reducesMotion;
};

class EachSetting : public AppearanceTest, public testing::WithParamInterface<LookRow> {};

TEST_P(EachSetting, SaysWhatItSays)
{
    const auto [setting, isHighContrast, reducesMotion] = GetParam();
    const Portal portal(bus, {setting, "org.freedesktop.appearance/color-scheme=1"});
    const Appearance appearance(session);

    // The answer about colours shows that the portal has answered.
    ASSERT_TRUE(turnUntil([&] { return appearance.isDark(); }));
    turnFor(50ms);

    EXPECT_EQ(appearance.isHighContrast(), isHighContrast);
    EXPECT_EQ(appearance.reducesMotion(), reducesMotion);
}

INSTANTIATE_TEST_SUITE_P(Appearance, EachSetting,
    testing::Values(LookRow{"org.freedesktop.appearance/contrast=1", true, false},
        LookRow{"org.freedesktop.appearance/contrast=0", false, false},
        LookRow{"org.freedesktop.appearance/reduced-motion=1", false, true},
        LookRow{"org.freedesktop.appearance/reduced-motion=0", false, false},
        LookRow{"org.gnome.desktop.interface/enable-animations=False", false, true},
        LookRow{"org.gnome.desktop.interface/enable-animations=True", false, false},
        LookRow{"org.kde.kdeglobals.KDE/AnimationDurationFactor='0'", false, true},
        LookRow{"org.kde.kdeglobals.KDE/AnimationDurationFactor='0.5'", false, false},
        LookRow{"org.kde.kdeglobals.KDE/AnimationDurationFactor='fast'", false, false}));

TEST_F(AppearanceTest, WithoutAPortalIsThePalettesAndFollowsIt)
{
    usePalette(Qt::white, Qt::black);
    const Appearance appearance(session);
    turnFor(50ms);
    ASSERT_FALSE(appearance.isDark());

    usePalette(Qt::black, Qt::white);

    EXPECT_TRUE(turnUntil([&] { return appearance.isDark(); }));
    EXPECT_FALSE(appearance.isHighContrast());
    EXPECT_FALSE(appearance.reducesMotion());
}

TEST_F(AppearanceTest, WithoutAPreferenceOfTheDesktopIsThePalettes)
{
    const Portal portal(bus, {"org.freedesktop.appearance/color-scheme=0", "org.freedesktop.appearance/contrast=1"});
    usePalette(Qt::black, Qt::white);
    const Appearance appearance(session);

    ASSERT_TRUE(turnUntil([&] { return appearance.isHighContrast(); }));
    EXPECT_TRUE(appearance.isDark());
}

TEST_F(AppearanceTest, APortalThatComesLaterIsHeard)
{
    const Appearance appearance(session);
    turnFor(50ms);

    const Portal portal(bus, {"org.freedesktop.appearance/color-scheme=1"});

    EXPECT_TRUE(turnUntil([&] { return appearance.isDark(); }));
}

TEST_F(AppearanceTest, APortalThatDoesNotAnswerHoldsUpNothing)
{
    Portal portal(bus, {"org.freedesktop.appearance/color-scheme=1"});
    portal.signal(SIGSTOP);
    const auto begin = std::chrono::steady_clock::now();

    Appearance appearance(session);
    appearance.catchUp();

    EXPECT_LT(std::chrono::steady_clock::now() - begin, 1s);
    EXPECT_FALSE(appearance.isDark());
    portal.signal(SIGCONT);
    EXPECT_TRUE(turnUntil([&] { return appearance.isDark(); }));
}

TEST_F(AppearanceTest, CatchingUpTakesTheAnswersWithoutTheEventLoop)
{
    const Portal portal(bus, {"org.freedesktop.appearance/color-scheme=1"});
    Appearance appearance(session);
    QThread::msleep(300);
    ASSERT_FALSE(appearance.isDark());

    appearance.catchUp();

    EXPECT_TRUE(appearance.isDark());
}

TEST_F(AppearanceTest, StaysAsItIsWhileTheBusIsLostAndFollowsTheOneThatReturns)
{
    auto portal = std::make_unique<Portal>(bus, QStringList{"org.freedesktop.appearance/color-scheme=1"});
    const Appearance appearance(session);
    ASSERT_TRUE(turnUntil([&] { return appearance.isDark(); }));

    bus.stop();
    portal.reset();
    ASSERT_TRUE(turnUntil([&] { return !session.connection().isConnected(); }));
    EXPECT_TRUE(appearance.isDark());
    bus.start();
    portal = std::make_unique<Portal>(bus, QStringList{"org.freedesktop.appearance/color-scheme=2"});

    EXPECT_TRUE(turnUntil([&] { return !appearance.isDark(); }));
    portal->change("org.freedesktop.appearance/color-scheme=1");
    EXPECT_TRUE(turnUntil([&] { return appearance.isDark(); }));
}

TEST_F(AppearanceTest, WithoutASessionBusIsThePalettes)
{
    usePalette(Qt::black, Qt::white);
    const SessionBus none("unix:path=/no/such/bus");
    const Appearance appearance(none);

    EXPECT_TRUE(appearance.isDark());
}

}  // namespace
}  // namespace larkspan::adapters
