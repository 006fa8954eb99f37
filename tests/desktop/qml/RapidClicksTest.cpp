#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "Screen.h"
#include "api/KeychainHelper.h"
#include "workspace/SettingsView.h"

namespace larkspan {

namespace {

using Role = QAccessible::Role;

class RapidClicks : public testing::Test, public Screen {
protected:
    RapidClicks()
    {
        servePages({"a"}, {});
        refresh();
        settle();
        transport.requests.clear();
    }

    /// Clicks at the place of the button, faster than anything can answer.
    void click(const char* name)
    {
        auto& button = item(Role::Button, QString::fromLatin1(name));
        const auto place = button.mapToScene({button.width() / 2, button.height() / 2}).toPoint();
        for (int count = 0; count < 20; ++count) QTest::mouseClick(&window(), Qt::LeftButton, {}, place);
        settle();
    }

    /// The number of buttons with this name.
    int count(const char* name) const { return static_cast<int>(names(Role::Button).count(QString::fromLatin1(name))); }
};

TEST_F(RapidClicks, OnRefreshNowStartOneCycle)
{
    click("Refresh Now");
    EXPECT_EQ(requestCount(), 4);
}

TEST_F(RapidClicks, OnRetryStartOneCycle)
{
    transport.script(pagesURL, 503, "");
    refresh();
    settle();
    servePages({"a"}, {});
    transport.requests.clear();
    click("Retry");
    EXPECT_EQ(requestCount(), 4);
    EXPECT_FALSE(shows(QStringLiteral("Refresh failed. Data may be stale.")));
}

TEST_F(RapidClicks, OnSettingsOpenOneSheetAndOnDoneCloseItWithOneCycle)
{
    click("Settings");
    EXPECT_EQ(count("Done"), 1);
    click("Done");
    EXPECT_EQ(count("Done"), 0);
    EXPECT_EQ(requestCount(), 4);
}

TEST_F(RapidClicks, OnSaveAndVerifyAskTheServiceOnce)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    click("Settings");
    dashboard->settings()->edit("k-456");
    settle();
    click("Save & Verify");
    EXPECT_EQ(requestCount(), 1);
    EXPECT_EQ(api::KeychainHelper::readAPIKey(credentials), "k-456");
}

TEST_F(RapidClicks, OnDeleteAskOnceAndDeleteOnce)
{
    click("Settings");
    click("Delete API Key");
    EXPECT_EQ(count("Delete"), 1);
    click("Delete");
    EXPECT_EQ(count("Delete"), 0);
    EXPECT_TRUE(credentials.items.empty());
}

TEST_F(RapidClicks, OnTheMenusLeaveTheWindowUsable)
{
    for (const auto* const name : {"Menu", "Refresh Interval"}) {
        click(name);
        press(Qt::Key_Escape);
        EXPECT_TRUE(names(Role::MenuItem).isEmpty()) << name;
    }
    click("Refresh Now");
    EXPECT_EQ(requestCount(), 4);
}

}  // namespace

}  // namespace larkspan
