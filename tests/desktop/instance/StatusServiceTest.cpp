#include "adapters/StatusService.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <thread>

#include "peers/EventLoop.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {

/// Another program under the program's name, with an answer of its own.
class StrangeStatus : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.kestrune.larkspan.Status")

public slots:
    QString Read() { return "fine, thank you"; }
};

namespace {

using namespace std::chrono_literals;
using platform::StatusReport;

const auto programName = QStringLiteral("com.kestrune.larkspan");

class Status : public testing::Test {
protected:
    /// Asks from another thread, as another process would, while this one answers.
    std::optional<StatusReport> ask(std::chrono::milliseconds patience = 5s)
    {
        std::optional<StatusReport> answer;
        bool isAnswered = false;
        std::jthread asking([&] {
            answer = StatusService::ask(bus.connect(), programName, patience);
            QMetaObject::invokeMethod(&here, [&] { isAnswered = true; });
        });
        peers::turnUntil([&] { return isAnswered; });
        return answer;
    }

    peers::PrivateBus bus;
    const SessionBus session{bus.address()};
    QDBusConnection program = session.connection();
    QObject here;
};

TEST_F(Status, IsThatOfTheRunningProgram)
{
    const StatusReport report{.exitCode = 2, .text = "Döwn\n", .json = "{}\n", .problem = "why"};
    program.registerService(programName);
    const StatusService service(session, programName, [&] { return report; });
    EXPECT_EQ(ask(), report);
}

TEST_F(Status, IsThatOfTheRunningProgramAlsoOnANewBus)
{
    const StatusReport report{.exitCode = 1, .text = "Degraded\n"};
    const StatusService service(session, programName, [&] { return report; });
    bus.stop();
    ASSERT_TRUE(peers::turnUntil([&] { return !session.connection().isConnected(); }));
    bus.start();
    ASSERT_TRUE(peers::turnUntil([&] { return session.connection().isConnected(); }));
    session.connection().registerService(programName);
    EXPECT_EQ(ask(), report);
}

TEST_F(Status, WithoutARunningProgramIsUnknownAndStartsNone)
{
    EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(Status, OfAProgramThatKnowsNothingYetIsUnknown)
{
    program.registerService(programName);
    const StatusService service(session, programName, [] { return std::nullopt; });
    EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(Status, OfAProgramThatIsStillStartingIsUnknown)
{
    program.registerService(programName);
    EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(Status, OfAnotherProgramUnderTheNameIsUnknown)
{
    StrangeStatus strange;
    program.registerObject("/com/kestrune/larkspan/status", &strange, QDBusConnection::ExportAllSlots);
    program.registerService(programName);
    EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(Status, OfAProgramThatIsFrozenIsUnknownWithinTheTime)
{
    program.registerService(programName);
    const StatusService service(session, programName, [] { return StatusReport{}; });
    const auto start = std::chrono::steady_clock::now();
    // This thread does not answer.
    EXPECT_EQ(StatusService::ask(bus.connect(), programName, 300ms), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 3s);
}

}  // namespace

}  // namespace larkspan::adapters

#include "StatusServiceTest.moc"
