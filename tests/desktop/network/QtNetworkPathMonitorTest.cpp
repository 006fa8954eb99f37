#include <QDBusMessage>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <csignal>

#include "peers/EventLoop.h"
#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {
namespace {

using peers::Peer;
using peers::PrivateBus;

/// The states of NetworkManager with their numbers.
enum class State : unsigned {
    unknown = 0,
    asleep = 10,
    disconnected = 20,
    disconnecting = 30,
    connecting = 40,
    connectedLocally = 50,
    connectedToSite = 60,
    connectedGlobally = 70,
};

QProcessEnvironment environmentOf(const PrivateBus& bus)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", bus.address());
    return environment;
}

/// NetworkManager's interface on the bus, without a network.
class NetworkManager : public Peer {
public:
    NetworkManager(const PrivateBus& bus, State state)
        : Peer("/usr/bin/python3", {"-m", "dbusmock", "--template", "networkmanager"}, environmentOf(bus))
        , bus_(bus)
    {
        bus.awaitOwner(name);
        setState(state);
    }

    void setState(State state)
    {
        auto call = QDBusMessage::createMethodCall(
            name, "/org/freedesktop/NetworkManager", "org.freedesktop.DBus.Mock", "SetGlobalConnectionState");
        call << static_cast<unsigned>(state);
        const auto reply = bus_.connect().call(call);
        ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    }

private:
    static constexpr auto name = "org.freedesktop.NetworkManager";

    const PrivateBus& bus_;
};

/// The program that watches the network.
class Watching : public Peer {
public:
    explicit Watching(const PrivateBus& bus)
        : Peer(LARKSPAN_PATH_PROBE, {}, environmentOf(bus))
    {
        hear();
    }
};

TEST(NetworkPath, IsSatisfiedWhenNetworkManagerIsOnline)
{
    const PrivateBus bus;
    const NetworkManager manager(bus, State::connectedGlobally);
    Watching program(bus);

    EXPECT_EQ(program.hear(), "satisfied");
}

TEST(NetworkPath, IsSatisfiedWhereTheServiceMayBeReachedThoughTheInternetWasNot)
{
    const PrivateBus bus;
    const NetworkManager manager(bus, State::connectedToSite);
    Watching program(bus);

    EXPECT_EQ(program.hear(), "satisfied");
}

class StateWithoutAWayOut : public testing::TestWithParam<State> {};

TEST_P(StateWithoutAWayOut, IsNotSatisfied)
{
    const PrivateBus bus;
    const NetworkManager manager(bus, GetParam());
    Watching program(bus);

    EXPECT_EQ(program.hear(), "unsatisfied");
}

INSTANTIATE_TEST_SUITE_P(
    NetworkPath, StateWithoutAWayOut, testing::Values(State::disconnected, State::connectedLocally));

TEST(NetworkPath, FollowsEachChangeAndTellsNothingTwice)
{
    const PrivateBus bus;
    NetworkManager manager(bus, State::connectedGlobally);
    Watching program(bus);
    ASSERT_EQ(program.hear(), "satisfied");

    manager.setState(State::disconnected);
    EXPECT_EQ(program.hear(), "unsatisfied");
    manager.setState(State::connectedLocally);
    manager.setState(State::connectedToSite);
    EXPECT_EQ(program.hear(), "satisfied");
    manager.setState(State::connectedGlobally);
    EXPECT_TRUE(program.heardByNow().isEmpty());
}

TEST(NetworkPath, KeepsWhatWasLastKnownWhileTheStateIsUnknown)
{
    const PrivateBus bus;
    NetworkManager manager(bus, State::disconnected);
    Watching program(bus);
    ASSERT_EQ(program.hear(), "unsatisfied");

    manager.setState(State::connecting);
    EXPECT_TRUE(program.heardByNow().isEmpty());
    manager.setState(State::connectedGlobally);
    EXPECT_EQ(program.hear(), "satisfied");
    manager.setState(State::unknown);
    EXPECT_TRUE(program.heardByNow().isEmpty());
}

TEST(NetworkPath, IsSatisfiedWhenNetworkManagerCannotTell)
{
    const PrivateBus bus;
    const NetworkManager manager(bus, State::unknown);
    Watching program(bus);

    EXPECT_EQ(program.hear(), "satisfied");
}

TEST(NetworkPath, IsSatisfiedWithoutNetworkManagerUntilOneComes)
{
    const PrivateBus bus;
    Watching program(bus);
    EXPECT_EQ(program.hear(), "satisfied");

    const NetworkManager manager(bus, State::disconnected);

    EXPECT_EQ(program.hear(), "unsatisfied");
}

TEST(NetworkPath, IsFollowedOnWhenNetworkManagerIsRestarted)
{
    const PrivateBus bus;
    auto manager = std::make_unique<NetworkManager>(bus, State::connectedGlobally);
    Watching program(bus);
    ASSERT_EQ(program.hear(), "satisfied");

    manager.reset();
    manager = std::make_unique<NetworkManager>(bus, State::disconnected);
    EXPECT_EQ(program.hear(), "unsatisfied");
    manager->setState(State::connectedGlobally);
    EXPECT_EQ(program.hear(), "satisfied");
}

TEST(NetworkPath, ANetworkManagerThatDoesNotAnswerHoldsUpNothingAndIsHeardOnceItDoes)
{
    const PrivateBus bus;
    NetworkManager manager(bus, State::disconnected);
    manager.signal(SIGSTOP);

    Watching program(bus);

    EXPECT_EQ(program.hear(), "satisfied");
    manager.signal(SIGCONT);
    EXPECT_EQ(program.hear(), "unsatisfied");
}

TEST(NetworkPath, ASlowNetworkManagerThatIsReplacedByAnotherIsForgotten)
{
    const PrivateBus bus;
    auto slow = std::make_unique<NetworkManager>(bus, State::connectedGlobally);
    slow->signal(SIGSTOP);
    Watching program(bus);

    slow->signal(SIGKILL);
    slow.reset();
    EXPECT_EQ(program.hear(), "satisfied");
    const NetworkManager next(bus, State::disconnected);

    EXPECT_EQ(program.hear(), "unsatisfied");
}

TEST(NetworkPath, IsSatisfiedWithoutASystemBus)
{
    PrivateBus bus;
    bus.stop();
    Watching program(bus);

    EXPECT_EQ(program.hear(), "satisfied");
}

}  // namespace
}  // namespace larkspan::adapters
