#include <QQuickItem>

#include <gtest/gtest.h>

#include "ChosenSize.h"
#include "KitWindow.h"
#include "Measures.h"
#include "bridge/values/MarkerValue.h"

namespace larkspan {

namespace {

/// A bar of 480 points with a button at each end.
class Header : public testing::Test, public KitWindow {
protected:
    Header()
        : KitWindow(QStringLiteral(R"(
            property string title: "Kestrune"
            property marker status
            property bool isStatusMovable: true
            HeaderBar {
                objectName: "bar"
                width: 480
                title: window.title
                isTitleDispensable: true
                isStatusMovable: window.isStatusMovable
                status: window.status
                leading: CommandButton { objectName: "leading"; text: "Close" }
                trailing: CommandButton { objectName: "trailing"; text: "Edit" }
            })"))
    {
    }

    void show(int letters)
    {
        bridge::MarkerValue marker;
        marker.text = QString(letters, QLatin1Char('m'));
        setProperty("status", QVariant::fromValue(marker));
    }

    QQuickItem& bar() const { return item(QStringLiteral("bar")); }
    const QQuickItem& leading() const { return item(QStringLiteral("leading")); }
    const QQuickItem& trailing() const { return item(QStringLiteral("trailing")); }
    const QQuickItem& title() const { return *partOf(bar(), "text", property("title")); }
    const QQuickItem& status() const
    {
        return *partOf(bar(), "text", QVariant(property("status").value<bridge::MarkerValue>().text));
    }
    bool showsStatus() const
    {
        return !partsOf(bar(), "text", QVariant(property("status").value<bridge::MarkerValue>().text)).empty();
    }
};

TEST_F(Header, HasItsTitleInTheMiddleWhereItCanBe)
{
    show(5);
    EXPECT_NEAR(frameOf(title()).center().x(), 240, 1);
    EXPECT_EQ(frameOf(status()).right(), frameOf(trailing()).left() - 8);
}

TEST_F(Header, HasItsTitleLeftOfTheStatusWithSixteenPointsClearWhereItCannotBeInTheMiddle)
{
    int letters = 5;
    while (letters < 40 && std::abs(frameOf(title()).center().x() - 240) <= 1) show(++letters);
    ASSERT_LT(letters, 40);
    show(letters + 2);
    EXPECT_LT(frameOf(title()).center().x(), 239);
    EXPECT_NEAR(gapBeside(title(), status()), 16, 1);
    EXPECT_GE(gapBeside(leading(), title()), 16);
    EXPECT_FALSE(status().property("truncated").toBool());
}

TEST_F(Header, ElidesItsStatusBeforeItsTitle)
{
    show(200);
    EXPECT_TRUE(showsStatus());
    EXPECT_TRUE(status().property("truncated").toBool());
    EXPECT_FALSE(title().property("truncated").toBool());
    EXPECT_NEAR(gapBeside(leading(), title()), 16, 1);
    EXPECT_NEAR(gapBeside(title(), status()), 16, 1);
    EXPECT_EQ(gapBeside(status(), trailing()), 8);
}

TEST_F(Header, LeavesAStatusWithoutRoomToItsScreen)
{
    show(20);
    EXPECT_TRUE(bar().property("hasRoomForStatus").toBool());
    bar().setWidth(300);
    settle();
    EXPECT_FALSE(bar().property("hasRoomForStatus").toBool());
    EXPECT_FALSE(showsStatus());
    EXPECT_FALSE(title().property("truncated").toBool());
}

TEST_F(Header, KeepsItsItemsApartInEveryWidthWhateverTheStatusIs)
{
    for (const bool isMovable : {false, true}) {
        setProperty("isStatusMovable", isMovable);
        for (const int letters : {0, 4, 12, 60}) {
            show(letters);
            for (int width = 300; width <= 800; width += 20) {
                bar().setWidth(width);
                settle();
                const auto titles = partsOf(bar(), "text", property("title"));
                auto end = frameOf(leading()).right();
                if (!titles.empty()) {
                    EXPECT_GE(frameOf(*titles.front()).left() - end, 15) << width << " " << letters;
                    end = frameOf(*titles.front()).right();
                }
                if (letters > 0 && showsStatus()) {
                    EXPECT_GE(frameOf(status()).left() - end, 15) << width << " " << letters;
                    end = frameOf(status()).right();
                }
                EXPECT_GE(frameOf(trailing()).left() - end, 7) << width << " " << letters;
            }
        }
    }
}

class LargeHeader : public LargeLetters, public Header {};

TEST_F(LargeHeader, TakesAtMostEightyPoints)
{
    EXPECT_LE(bar().height(), 80);
    EXPECT_LE(leading().height(), bar().height() - 8);
}

}  // namespace

}  // namespace larkspan
