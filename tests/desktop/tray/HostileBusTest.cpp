#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>

#include <limits>

#include "TrayTest.h"

namespace larkspan::adapters {
namespace {

/// Calls to the item by any program of the session.
class HostileBusTest : public TrayTest {
protected:
    HostileBusTest()
    {
        item.setMenu(menuOf({page("p1", "Shop")}));
        show();
        host = panel();
    }

    ~HostileBusTest() override
    {
        EXPECT_EQ(host->rows().size(), 9);
        EXPECT_TRUE(performed.empty());
    }

    static QString error(const QJsonValue& answer) { return answer.toObject().value("error").toString(); }

    std::unique_ptr<peers::TrayHost> host;
};

constexpr auto invalidArguments = "org.freedesktop.DBus.Error.InvalidArgs";

class EachUnknownId : public HostileBusTest, public testing::WithParamInterface<int> {};

TEST_P(EachUnknownId, IsRefused)
{
    const int id = GetParam();

    EXPECT_EQ(error(host->callMenu("GetLayout", "iias", {id, -1, QJsonArray()})), invalidArguments);
    EXPECT_EQ(error(host->callMenu("GetProperty", "is", {id, "label"})), invalidArguments);
    EXPECT_EQ(error(host->callMenu("Event", "isvu", {id, "clicked", "", 0})), invalidArguments);
    EXPECT_EQ(error(host->callMenu("AboutToShow", "i", {id})), invalidArguments);
    EXPECT_EQ(host->callMenu("GetGroupProperties", "aias", {QJsonArray{id}, QJsonArray()}), QJsonArray());
}

INSTANTIATE_TEST_SUITE_P(
    Bus, EachUnknownId, testing::Values(-1, 4711, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()));

TEST_F(HostileBusTest, AnUnknownPropertyIsRefused)
{
    EXPECT_EQ(error(host->callMenu("GetProperty", "is", {0, "no-such-property"})), invalidArguments);
}

TEST_F(HostileBusTest, ArgumentsOfOtherTypesAreRefused)
{
    EXPECT_FALSE(error(host->callMenu("Event", "s", {"clicked"})).isEmpty());
    EXPECT_FALSE(error(host->callMenu("EventGroup", "as", {QJsonArray{"clicked"}})).isEmpty());
    EXPECT_FALSE(error(host->callItem("Activate", "ss", {"1", "2"})).isEmpty());
}

TEST_F(HostileBusTest, NoPropertyCanBeWritten)
{
    const auto connection = bus.connect();
    const auto set = [&](const QString& path, const QString& interface, const QString& name, const QVariant& value) {
        auto call = QDBusMessage::createMethodCall(host->itemName(), path, "org.freedesktop.DBus.Properties", "Set");
        call << interface << name << QVariant::fromValue(QDBusVariant(value));
        const auto reply = connection.asyncCall(call);
        EXPECT_TRUE(peers::turnUntil([&] { return reply.isFinished(); }));
        return reply.isError();
    };

    EXPECT_TRUE(set("/StatusNotifierItem", "org.kde.StatusNotifierItem", "IconName", "skull"));
    EXPECT_TRUE(set("/StatusNotifierItem", "org.kde.StatusNotifierItem", "Title", "Another"));
    EXPECT_TRUE(set("/MenuBar", "com.canonical.dbusmenu", "Status", "notice"));
}

TEST_F(HostileBusTest, ManyIdsAndNamesAreAnsweredOnce)
{
    QJsonArray ids;
    QJsonArray names;
    for (int number = 0; number < 20'000; ++number) {
        ids << number % 20;
        names << QString("name %1").arg(number);
    }

    const auto answer = host->callMenu("GetGroupProperties", "aias", {ids, names});

    EXPECT_LE(answer.toArray().size(), 10);
}

}  // namespace
}  // namespace larkspan::adapters
