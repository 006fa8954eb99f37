#include "adapters/PackageKitUpdater.h"

#include <QProcessEnvironment>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <optional>

#include "peers/EventLoop.h"
#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::platform {

void PrintTo(const UpdateCheck& check, std::ostream* stream)
{
    *stream << static_cast<int>(check.finding) << " " << check.installedVersion << " -> " << check.availableVersion;
}

}  // namespace larkspan::platform

namespace larkspan::adapters {
namespace {

using peers::turnFor;
using peers::turnUntil;
using platform::UpdateCheck;
using Finding = UpdateCheck::Finding;
using namespace std::chrono_literals;

constexpr auto installed = R"("Resolve": [["Package", 1, "larkspan;1.0.0-1;amd64;installed", ""], ["Finished", 1, 5]])";

/// PackageKit with a script (see package_kit.py).
class PackageKit : public peers::Peer {
public:
    PackageKit(const peers::PrivateBus& bus, const std::string& play)
        : Peer("/usr/bin/python3", {LARKSPAN_PACKAGE_KIT, QString::fromStdString("{" + play + "}")}, environment(bus))
    {
        hear();
    }

private:
    static QProcessEnvironment environment(const peers::PrivateBus& bus)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SYSTEM_BUS_ADDRESS", bus.address());
        return environment;
    }
};

std::string withUpdates(const std::string& steps)
{
    return installed + std::string(R"(, "GetUpdates": [)") + steps + "]";
}

class PackageKitUpdaterTest : public testing::Test {
protected:
    void check(PackageKitUpdater& updater)
    {
        updater.check([this](const UpdateCheck& found) { answers.push_back(found); });
    }

    UpdateCheck answerWithin(std::chrono::milliseconds deadline)
    {
        PackageKitUpdater updater(bus.connect(), deadline);
        check(updater);
        EXPECT_TRUE(answers.empty());
        turnUntil([&] { return !answers.empty(); });
        // Time for any further output.
        turnFor(50ms);
        EXPECT_EQ(answers.size(), 1U);
        return answers.empty() ? UpdateCheck{} : answers.front();
    }

    peers::PrivateBus bus;
    std::vector<UpdateCheck> answers;
};

struct PlayRow {
    std::string play;
    UpdateCheck expected;
};

class EachPlay : public PackageKitUpdaterTest, public testing::WithParamInterface<PlayRow> {};

TEST_P(EachPlay, HasItsFinding)
{
    const PackageKit packageKit(bus, GetParam().play);

    EXPECT_EQ(answerWithin(10s), GetParam().expected);
}

const UpdateCheck upToDate{Finding::upToDate, "1.0.0-1"};
const UpdateCheck updateAvailable{Finding::updateAvailable, "1.0.0-1", "1:1.2~rc1+b2"};
const UpdateCheck notPackaged{Finding::notPackaged};
const UpdateCheck noPackageService{Finding::noPackageService};
const UpdateCheck failed{Finding::failed};
const UpdateCheck failedLate{Finding::failed, "1.0.0-1"};
constexpr auto update = R"(["Package", 5, "larkspan;1:1.2~rc1+b2;amd64;stable", "Status pages"])";

INSTANTIATE_TEST_SUITE_P(Updates, EachPlay,
    testing::Values(PlayRow{installed, upToDate},
        PlayRow{withUpdates(std::string(update) + R"(, ["Finished", 1, 5])"), updateAvailable},
        PlayRow{withUpdates(R"(["Package", 262152, "larkspan;1:1.2~rc1+b2;amd64;stable", ""], ["Finished", 1, 5])"),
            updateAvailable},
        PlayRow{
            R"("Resolve": [["Package", 1, "larkspan;1.0.0-1;amd64;manual:stable", ""], ["Finished", 1, 5]])", upToDate},
        PlayRow{withUpdates(R"(["Package", 5, "larkspan-data;9;all;stable", ""], ["Finished", 1, 5])"), upToDate}));

INSTANTIATE_TEST_SUITE_P(Installation, EachPlay,
    testing::Values(PlayRow{R"("Resolve": [["Finished", 1, 5]])", notPackaged},
        PlayRow{R"("Resolve": [["Package", 1, "larkspan-data;1;all;installed", ""], ["Finished", 1, 5]])", notPackaged},
        PlayRow{R"("Resolve": [["Package", 2, "larkspan;2;amd64;stable", ""], ["Finished", 1, 5]])", notPackaged}));

INSTANTIATE_TEST_SUITE_P(NoService, EachPlay,
    testing::Values(
        PlayRow{R"("CreateTransaction": [["fail", "org.freedesktop.DBus.Error.ServiceUnknown"]])", noPackageService},
        PlayRow{R"("CreateTransaction": [["fail", "org.freedesktop.systemd1.UnitMasked"]])", noPackageService},
        PlayRow{R"("CreateTransaction": [["fail", "org.freedesktop.DBus.Error.AccessDenied"]])", failed}));

INSTANTIATE_TEST_SUITE_P(Failures, EachPlay,
    testing::Values(PlayRow{R"("Resolve": [["ErrorCode", 4, "no cache"], ["Finished", 2, 5]])", failed},
        PlayRow{R"("Resolve": [["Finished", 2, 5]])", failed}, PlayRow{R"("Resolve": [["Destroy"]])", failed},
        PlayRow{R"("Resolve": [["fail", "org.freedesktop.PackageKit.Denied"]])", failed},
        PlayRow{R"("Resolve": [["die"]])", failed},
        PlayRow{withUpdates(R"(["ErrorCode", 2, "no network"], ["Finished", 2, 5])"), failedLate},
        PlayRow{withUpdates(std::string(update) + R"(, ["Finished", 3, 5])"), failedLate},
        PlayRow{withUpdates(R"(["die"])"), failedLate}));

INSTANTIATE_TEST_SUITE_P(RefreshingInVain, EachPlay,
    testing::Values(
        PlayRow{installed + std::string(R"(, "RefreshCache": [["ErrorCode", 2, "no network"], ["Finished", 2, 5]])"),
            upToDate},
        PlayRow{installed + std::string(R"(, "RefreshCache": [["fail", "org.freedesktop.PackageKit.Denied"]])"),
            upToDate}));

class HostilePackageId : public PackageKitUpdaterTest, public testing::WithParamInterface<std::string> {};

TEST_P(HostilePackageId, IsNoUpdate)
{
    const PackageKit packageKit(bus, withUpdates(R"(["Package", 5, ")" + GetParam() + R"(", ""], ["Finished", 1, 5])"));

    EXPECT_EQ(answerWithin(10s), upToDate);
}

INSTANTIATE_TEST_SUITE_P(Updates, HostilePackageId,
    testing::Values("", ";;;", "larkspan", "larkspan;2", "larkspan;2;amd64", "larkspan;2;amd64;stable;more",
        "larkspan;;amd64;stable", "larkspan;<b>2</b>;amd64;stable", "larkspan;2 \\n;amd64;stable",
        "larkspan;" + std::string(5000, '9') + ";amd64;stable", "Larkspan;2;amd64;stable", " larkspan;2;amd64;stable",
        "x\\nlarkspan;2;amd64;stable"));

TEST_F(PackageKitUpdaterTest, AsksForWhatIsInstalledThenForNewsThenForUpdatesAndNeverForAPassword)
{
    PackageKit packageKit(bus, installed);

    answerWithin(10s);

    const QStringList calls{R"(["SetHints", ["interactive=false"]])", R"(["Resolve", 4, ["larkspan"]])",
        R"(["SetHints", ["interactive=false"]])", R"(["RefreshCache", false])",
        R"(["SetHints", ["interactive=false"]])", R"(["GetUpdates", 2])"};
    EXPECT_EQ(packageKit.heardByNow(), calls);
}

TEST_F(PackageKitUpdaterTest, FindsNoServiceOnASystemWithoutPackageKit)
{
    EXPECT_EQ(answerWithin(10s), noPackageService);
}

TEST_F(PackageKitUpdaterTest, FindsNoServiceWithoutASystemBus)
{
    PackageKitUpdater updater(QDBusConnection("no such connection"));

    check(updater);

    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(turnUntil([&] { return !answers.empty(); }));
    EXPECT_EQ(answers.front(), noPackageService);
}

TEST_F(PackageKitUpdaterTest, FailsAtTheDeadlineAndCancelsWhatHangs)
{
    PackageKit packageKit(bus, R"("Resolve": [])");

    EXPECT_EQ(answerWithin(500ms), failed);

    packageKit.hear();
    packageKit.hear();
    EXPECT_EQ(packageKit.hear(), R"(["Cancel"])");
}

TEST_F(PackageKitUpdaterTest, FailsAtTheDeadlineOfAServiceThatAnswersNothing)
{
    PackageKit packageKit(bus, installed);
    packageKit.signal(SIGSTOP);

    EXPECT_EQ(answerWithin(300ms), failed);
}

TEST_F(PackageKitUpdaterTest, LooksForUpdatesWithoutARefreshThatTakesTooLong)
{
    const PackageKit packageKit(bus, installed + std::string(R"(, "RefreshCache": [])"));

    EXPECT_EQ(answerWithin(2s), upToDate);
}

TEST_F(PackageKitUpdaterTest, AServiceThatDiesMidwayIsNoticedAtOnce)
{
    PackageKit packageKit(bus, R"("Resolve": [])");
    PackageKitUpdater updater(bus.connect(), 60s);
    check(updater);
    packageKit.hear();
    packageKit.hear();

    packageKit.signal(SIGKILL);

    EXPECT_TRUE(turnUntil([&] { return !answers.empty(); }));
    EXPECT_EQ(answers, std::vector{failed});
}

TEST_F(PackageKitUpdaterTest, AnswersTheSecondCheckWithTheFirstsFinding)
{
    PackageKit packageKit(bus, installed);
    PackageKitUpdater updater(bus.connect(), 10s);

    check(updater);
    check(updater);

    EXPECT_TRUE(turnUntil([&] { return answers.size() == 2; }));
    EXPECT_EQ(answers, std::vector(2, upToDate));
    EXPECT_EQ(packageKit.heardByNow().size(), 6);
}

TEST_F(PackageKitUpdaterTest, ChecksAnewAfterAFailureEvenFromWithinTheAnswer)
{
    PackageKitUpdater updater(bus.connect(), 10s);
    std::optional<PackageKit> packageKit;
    updater.check([&](const UpdateCheck&) {
        packageKit.emplace(bus, installed);
        check(updater);
    });

    EXPECT_TRUE(turnUntil([&] { return !answers.empty(); }));
    EXPECT_EQ(answers, std::vector{upToDate});
}

TEST_F(PackageKitUpdaterTest, MayBeDestroyedByItsAnswer)
{
    const PackageKit packageKit(bus, installed);
    auto updater = std::make_unique<PackageKitUpdater>(bus.connect(), 10s);

    updater->check([&](const UpdateCheck&) { updater.reset(); });

    EXPECT_TRUE(turnUntil([&] { return updater == nullptr; }));
}

TEST_F(PackageKitUpdaterTest, AnswersNobodyOnceDestroyedAndCancelsItsWork)
{
    PackageKit packageKit(bus, R"("Resolve": [])");
    auto updater = std::make_unique<PackageKitUpdater>(bus.connect(), 300ms);
    check(*updater);
    packageKit.hear();
    packageKit.hear();

    updater.reset();

    EXPECT_EQ(packageKit.hear(), R"(["Cancel"])");
    turnFor(500ms);
    EXPECT_TRUE(answers.empty());
}

}  // namespace
}  // namespace larkspan::adapters
