#include "adapters/SingleInstance.h"

#include <QDBusMessage>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <memory>

#include "peers/EventLoop.h"
#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {
namespace {

using peers::PrivateBus;

const auto programName = QStringLiteral("com.kestrune.larkspan");

/// A process that starts as another instance of the program.
class Start : public peers::Peer {
public:
    explicit Start(const QString& busAddress, const QString& tokenVariable = {}, const QString& token = {},
        const QString& name = programName, const QStringList& arguments = {})
        : Peer(LARKSPAN_INSTANCE_PROBE, arguments + QStringList{name}, environment(busAddress, tokenVariable, token))
    {
    }

private:
    static QProcessEnvironment environment(
        const QString& busAddress, const QString& tokenVariable, const QString& token)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", busAddress);
        for (const auto* const variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID", "DISPLAY"}) {
            environment.remove(variable);
        }
        if (!tokenVariable.isEmpty()) environment.insert(tokenVariable, token);
        return environment;
    }
};

QDBusMessage callApplication(const PrivateBus& bus, const QString& method, const QVariantList& arguments)
{
    auto call = QDBusMessage::createMethodCall(
        programName, QStringLiteral("/com/kestrune/larkspan"), "org.freedesktop.Application", method);
    call.setArguments(arguments);
    return bus.connect().call(call);
}

TEST(SingleInstance, ASecondStartActivatesTheFirstAndEnds)
{
    const PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");

    Start second(bus.address());

    EXPECT_EQ(second.hear(), "second");
    EXPECT_TRUE(second.endsWell());
    EXPECT_EQ(first.hear(), "activated");
    EXPECT_FALSE(first.hasEnded());
}

TEST(SingleInstance, ASecondStartHandsOverItsActivationToken)
{
    const PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");

    Start wayland(bus.address(), "XDG_ACTIVATION_TOKEN", "token-of-wayland");
    EXPECT_EQ(first.hear(), "activated token-of-wayland");

    Start x11(bus.address(), "DESKTOP_STARTUP_ID", "launcher-1_TIME42");
    EXPECT_EQ(first.hear(), "activated launcher-1_TIME42");
}

TEST(SingleInstance, ASecondStartInThePanelAloneEndsAndShowsNoWindow)
{
    const PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");

    Start second(bus.address(), {}, {}, programName, {"--minimized"});

    EXPECT_EQ(second.hear(), "second");
    EXPECT_TRUE(second.endsWell());
    EXPECT_EQ(first.heardByNow(), QStringList());
}

TEST(SingleInstance, OfManyStartsAtOnceExactlyOneIsFirst)
{
    const PrivateBus bus;
    std::array<std::unique_ptr<Start>, 6> starts;
    for (auto& start : starts) start = std::make_unique<Start>(bus.address());

    int firsts = 0;
    int seconds = 0;
    for (auto& start : starts) {
        const auto standing = start->hear();
        firsts += standing == "first";
        seconds += standing == "second";
    }

    EXPECT_EQ(firsts, 1);
    EXPECT_EQ(seconds, 5);
}

TEST(SingleInstance, ProgramsOfDifferentNamesRunBesideOneAnother)
{
    const PrivateBus bus;
    Start program(bus.address());
    ASSERT_EQ(program.hear(), "first");
    const auto otherName = programName + QStringLiteral(".other");

    Start other(bus.address(), {}, {}, otherName);
    EXPECT_EQ(other.hear(), "first");

    Start otherAgain(bus.address(), {}, {}, otherName);
    EXPECT_EQ(otherAgain.hear(), "second");
    EXPECT_EQ(other.hear(), "activated");
    Start programAgain(bus.address());
    EXPECT_EQ(programAgain.hear(), "second");
    EXPECT_EQ(program.hear(), "activated");
}

TEST(SingleInstance, AFirstThatDoesNotAnswerIsReplacedAndQuitsWhenItWakes)
{
    const PrivateBus bus;
    Start stuck(bus.address());
    ASSERT_EQ(stuck.hear(), "first");
    stuck.signal(SIGSTOP);

    Start successor(bus.address());
    ASSERT_EQ(successor.hear(), "first");
    stuck.signal(SIGCONT);

    // It answers the call that woke it, although nobody waits any more.
    EXPECT_EQ(stuck.hear(), "activated");
    EXPECT_EQ(stuck.hear(), "replaced");
    EXPECT_TRUE(stuck.endsWell());
    Start third(bus.address());
    EXPECT_EQ(third.hear(), "second");
    EXPECT_EQ(successor.hear(), "activated");
}

TEST(SingleInstance, AFirstThatDiesWhileItIsAskedIsSucceeded)
{
    const PrivateBus bus;
    Start dying(bus.address());
    ASSERT_EQ(dying.hear(), "first");
    dying.signal(SIGSTOP);
    Start successor(bus.address());
    peers::turnFor(std::chrono::milliseconds(300));

    dying.signal(SIGKILL);

    EXPECT_EQ(successor.hear(), "first");
}

TEST(SingleInstance, AnotherProgramUnderTheNameIsNoInstance)
{
    const PrivateBus bus;
    auto other = bus.connect();
    ASSERT_TRUE(other.registerService(programName));

    Start first(bus.address());

    EXPECT_EQ(first.hear(), "first");
}

TEST(SingleInstance, AnotherProgramUnderTheNameIsNoInstanceForAStartInThePanelAlone)
{
    const PrivateBus bus;
    auto other = bus.connect();
    ASSERT_TRUE(other.registerService(programName));

    Start first(bus.address(), {}, {}, programName, {"--minimized"});

    EXPECT_EQ(first.hear(), "first");
}

TEST(SingleInstance, TheNameIsFreeAgainWhenTheFirstHasEnded)
{
    const PrivateBus bus;
    {
        Start first(bus.address());
        ASSERT_EQ(first.hear(), "first");
    }
    Start next(bus.address());

    EXPECT_EQ(next.hear(), "first");
}

TEST(SingleInstance, WithoutASessionBusEveryoneIsFirst)
{
    Start first("unix:path=/nonexistent/bus");
    Start second("unix:path=/nonexistent/bus");

    EXPECT_EQ(first.hear(), "first");
    EXPECT_EQ(second.hear(), "first");
}

TEST(SingleInstance, OutlivesTheSessionBus)
{
    PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");

    bus.stop();
    peers::turnFor(std::chrono::milliseconds(300));

    EXPECT_FALSE(first.hasEnded());
}

TEST(SingleInstance, HasItsNameAgainOnANewBus)
{
    PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");

    bus.stop();
    bus.start();
    ASSERT_TRUE(bus.awaitOwner(programName));
    Start second(bus.address());

    EXPECT_EQ(second.hear(), "second");
    EXPECT_EQ(first.hear(), "activated");
}

TEST(SingleInstance, BesideOneThatStartedMeanwhileGoesOnAndHasItsNameAgainWhenThatOneEnds)
{
    PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");
    first.signal(SIGSTOP);
    bus.stop();
    bus.start();
    auto meanwhile = std::make_unique<Start>(bus.address());
    ASSERT_EQ(meanwhile->hear(), "first");

    first.signal(SIGCONT);
    peers::turnFor(std::chrono::seconds(1));
    EXPECT_EQ(first.heardByNow(), QStringList());
    EXPECT_FALSE(first.hasEnded());
    meanwhile.reset();

    Start third(bus.address());
    EXPECT_EQ(third.hear(), "second");
    EXPECT_EQ(first.hear(), "activated");
}

TEST(ApplicationService, BeingHandedFilesIsAnActivation)
{
    const PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");

    const auto reply = callApplication(
        bus, "Open", {QStringList{"file:///tmp/a"}, QVariantMap{{"activation-token", "token-of-a-file-manager"}}});

    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(first.hear(), "activated token-of-a-file-manager");
}

TEST(ApplicationService, AnActionIsRefusedInWords)
{
    const PrivateBus bus;
    Start first(bus.address());
    ASSERT_EQ(first.hear(), "first");

    const auto reply = callApplication(bus, "ActivateAction", {"reboot", QVariantList{}, QVariantMap{}});

    EXPECT_EQ(reply.errorName(), "org.freedesktop.DBus.Error.InvalidArgs");
    EXPECT_EQ(reply.errorMessage(), "There is no action \"reboot\".");
}

}  // namespace
}  // namespace larkspan::adapters
