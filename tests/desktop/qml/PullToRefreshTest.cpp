#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"

namespace larkspan {

namespace {

/// A list that is pulled down with the mouse or a finger, and released.
class PulledList : public IncidentsOnScreen {
protected:
    void pull(int distance)
    {
        const QPoint begin(window().width() / 2, 140);
        QTest::mousePress(&window(), Qt::LeftButton, {}, begin);
        for (int way = 10; way <= distance; way += 10) {
            QTest::mouseMove(&window(), begin + QPoint(0, way));
            settle();
        }
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, begin + QPoint(0, distance));
        settle();
    }

    /// Opens the list again.
    void show(int status, const std::string& body)
    {
        press(Qt::Key_1, Qt::ControlModifier);
        transport.script(pageIncidentsURL, status, body);
        press(Qt::Key_2, Qt::ControlModifier);
        transport.requests.clear();
    }

    const std::vector<std::string> fetched{std::string("GET ") + pageIncidentsURL};
};

TEST_F(PulledList, IsFetchedAfreshAndOpensNothing)
{
    serve({incident("7", "A new one")});
    pull(300);
    EXPECT_EQ(sent(), fetched);
    EXPECT_EQ(names(Role::ListItem), QStringList{"A new one"});
}

TEST_F(PulledList, ThatIsEmptyIsFetchedAfresh)
{
    show(200, "[]");
    ASSERT_TRUE(shows(QStringLiteral("No Incidents")));
    serve({incident("7", "A new one")});
    pull(300);
    EXPECT_EQ(sent(), fetched);
    EXPECT_EQ(names(Role::ListItem), QStringList{"A new one"});
}

TEST_F(PulledList, ThatHasFailedIsFetchedAfresh)
{
    show(503, "");
    ASSERT_TRUE(shows(QStringLiteral("Server returned HTTP status code 503.")));
    serve({incident("7", "A new one")});
    pull(300);
    EXPECT_EQ(sent(), fetched);
    EXPECT_EQ(names(Role::ListItem), QStringList{"A new one"});
}

TEST_F(PulledList, OnlyALittleWayFetchesNothing)
{
    pull(60);
    show(200, "[]");
    pull(60);
    EXPECT_TRUE(sent().empty());
}

TEST_F(PulledList, OfPagesStartsACycleAlsoWhereThereIsNone)
{
    press(Qt::Key_Escape);
    transport.requests.clear();
    servePages({}, {});
    pull(300);
    EXPECT_EQ(sent().size(), 4U);
    ASSERT_TRUE(shows(QStringLiteral("No Status Pages")));
    servePages({"b"}, {});
    pull(300);
    EXPECT_EQ(names(Role::ListItem), QStringList{"b"});
}

}  // namespace

}  // namespace larkspan
