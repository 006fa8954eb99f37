#include <QTest>

#include <gtest/gtest.h>

#include <string>

#include "KitWindow.h"
#include "Measures.h"
#include "bridge/values/PillValue.h"

namespace larkspan {

namespace {

struct Target {
    std::string name;
    std::string qml;

    friend void PrintTo(const Target& target, std::ostream* stream) { *stream << target.name; }
};

/// A control in a window of its own, and how often it was pressed.
class SmallControl : public testing::TestWithParam<Target>, public KitWindow {
protected:
    SmallControl()
        : KitWindow(QStringLiteral("property int presses: 0\nItem { x: 100; y: 100; width: 300; height: 200\n %1 }")
                  .arg(QString::fromStdString(GetParam().qml)))
    {
    }

    int presses() const { return property("presses").toInt(); }
};

TEST_P(SmallControl, IsHitWithinTwentyFourPoints)
{
    const auto middle = frameOf(item(QStringLiteral("it"))).center();
    const double reach = 11;
    int expected = 0;
    for (const auto way : {QPointF(0, -reach), QPointF(0, reach), QPointF(-reach, 0), QPointF(reach, 0)}) {
        QTest::mouseClick(&window(), Qt::LeftButton, {}, (middle + way).toPoint());
        settle();
        EXPECT_EQ(presses(), ++expected) << way.x() << ", " << way.y();
    }
}

INSTANTIATE_TEST_SUITE_P(Kit, SmallControl,
    testing::Values(
        Target{"Switch",
            R"(Toggle { objectName: "it"; width: 200; text: "It"; isOn: false; onClicked: window.presses += 1 })"},
        Target{"SmallButton",
            R"(CommandButton { objectName: "it"; text: "It"; isSmall: true; onClicked: window.presses += 1 })"},
        Target{"Tool",
            R"(ToolbarButton { objectName: "it"; symbol: "plus"; help: "It"; onClicked: window.presses += 1 })"},
        Target{"Link",
            R"(LinkLabel { objectName: "it"; width: implicitWidth; height: implicitHeight; text: "It"; onClicked: window.presses += 1 })"},
        Target{"VeryShort", R"(Pressable { objectName: "it"; width: 8; height: 8; onClicked: window.presses += 1 })"}),
    [](const auto& instance) { return instance.param.name; });

/// A control that is enabled while the window's `isOn` is.
class ControlThatIsDisabled : public testing::TestWithParam<Target>, public KitWindow {
protected:
    ControlThatIsDisabled()
        : KitWindow(QStringLiteral("property bool isOn: true\nItem { x: 100; y: 100; width: 300; height: 200\n"
                                   "enabled: window.isOn\n %1 }")
                  .arg(QString::fromStdString(GetParam().qml)))
    {
    }
};

TEST_P(ControlThatIsDisabled, LooksOtherThanAtRest)
{
    const auto atRest = window().grabWindow();
    setProperty("isOn", false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window().grabWindow() != atRest; }));
}

INSTANTIATE_TEST_SUITE_P(Kit, ControlThatIsDisabled,
    testing::Values(Target{"Button", R"(CommandButton { text: "It" })"},
        Target{"Tool", R"(ToolbarButton { symbol: "plus"; help: "It" })"},
        Target{"Switch", R"(Toggle { width: 200; text: "It"; isOn: true })"},
        Target{"Entry", R"(TextEntry { width: 200; name: "It"; text: "It" })"},
        Target{"Secret", R"(SecretField { width: 200; name: "It"; text: "It" })"},
        Target{"Time", R"(TimeField { name: "It"; value: "12"; pattern: "[0-9]*"; text: "12" })"},
        Target{"Box", R"(TextBox { width: 200; name: "It"; Component.onCompleted: show("It") })"},
        Target{"Segments", R"(SegmentedPicker { width: 200; name: "It"; segments: ["It", "Else"]; selected: 0 })"}),
    [](const auto& instance) { return instance.param.name; });

/// A pill of each tone that tells a severity.
class PillsOfSeverity : public testing::Test, public KitWindow {
protected:
    PillsOfSeverity()
        : KitWindow(QStringLiteral(R"(
            color: Theme.card
            property pill orange
            property pill yellow
            Row {
                spacing: 20
                Pill { objectName: "orange"; pill: window.orange }
                Pill { objectName: "yellow"; pill: window.yellow }
            })"))
    {
        show("orange", bridge::Tone::Orange);
        show("yellow", bridge::Tone::Yellow);
    }

    void show(const char* name, int tone)
    {
        setProperty(name, QVariant::fromValue(bridge::PillValue{.text = QStringLiteral("Word"), .tone = tone}));
    }

    /// Whether its edge differs from its inside.
    bool hasOutline(const char* name) const
    {
        const auto place = frameOf(item(QString::fromUtf8(name))).toRect();
        const auto picture = window().grabWindow();
        const auto y = place.center().y();
        return picture.pixelColor(place.left(), y) != picture.pixelColor(place.left() + 3, y);
    }
};

TEST_F(PillsOfSeverity, OrangeAndYellowAreToldApartWithoutTheirColour)
{
    EXPECT_FALSE(hasOutline("orange"));
    EXPECT_TRUE(hasOutline("yellow"));
}

TEST(BusyTool, ShowsItsProgressInFull)
{
    const KitWindow shown(
        QStringLiteral(R"(ToolbarButton { objectName: "it"; symbol: "plus"; help: "It"; isBusy: true })"));
    EXPECT_EQ(shown.item(QStringLiteral("it")).opacity(), 1);
}

}  // namespace

}  // namespace larkspan
