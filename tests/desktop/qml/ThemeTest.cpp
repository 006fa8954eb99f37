#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "Contrast.h"
#include "Screen.h"

namespace larkspan {

namespace {

QColor tinted(const QColor& ground, QColor tint, float share)
{
    tint.setAlphaF(share);
    return over(ground, tint);
}

class Theme : public testing::TestWithParam<bool> {
protected:
    Theme()
    {
        screen.mainWindow.appearance().setProperty("isDark", GetParam());
        screen.settle();
        QQmlComponent probe(qmlEngine(&screen.window()));
        probe.setData("import QtQml; import Larkspan.Kit; QtObject { property QtObject theme: Theme }", {});
        probe_.reset(probe.create());
    }

    QColor color(const char* token) const
    {
        return probe_->property("theme").value<QObject*>()->property(token).value<QColor>();
    }

    Screen screen;

private:
    std::unique_ptr<QObject> probe_;
};

TEST_P(Theme, KeepsStatusColoursLegibleOnACardAndOnTheirOwnTints)
{
    for (const char* token : {"green", "orange", "yellow", "red", "blue", "gray"}) {
        EXPECT_GE(contrast(color(token), color("card")), 4.5) << token;
        EXPECT_GE(contrast(color(token), tinted(color("card"), color(token), 0.15F)), 4.5) << token << " on 15 %";
        EXPECT_GE(contrast(color(token), tinted(color("card"), color(token), 0.20F)), 4.5) << token << " on 20 %";
    }
}

TEST_P(Theme, KeepsWordsLegibleOnAButtonOfAFullStatusColour)
{
    for (const char* token : {"green", "orange", "yellow", "red", "blue", "gray"}) {
        EXPECT_GE(contrast(color("toneText"), color(token)), 4.5) << token;
    }
}

TEST_P(Theme, KeepsTheWordOfWhatCannotBeUndoneLegibleOnItsFullColour)
{
    EXPECT_GE(contrast(color("dangerText"), color("danger")), 4.5);
    EXPECT_EQ(color("dangerText"), QColor("#ffffff"));
    EXPECT_GT(color("danger").hslSaturationF(), 0.5);
}

TEST_P(Theme, KeepsTextLegibleOnRaisedSurfacesAndOnARowThatIsPressed)
{
    for (const char* ground : {"raised", "sheet"}) {
        for (const char* token : {"text", "secondary", "green", "orange", "yellow", "red", "blue", "gray"}) {
            EXPECT_GE(contrast(color(token), color(ground)), 4.5) << token << " on " << ground;
        }
    }
    EXPECT_GE(contrast(color("accentText"), color("accentPressed")), contrast(color("accentText"), color("accent")));
}

TEST_P(Theme, KeepsTextLegible)
{
    for (const char* ground : {"window", "card"}) {
        EXPECT_GE(contrast(color("text"), color(ground)), 7) << ground;
        EXPECT_GE(contrast(color("secondary"), color(ground)), 4.5) << ground;
    }
    EXPECT_GE(contrast(color("accentText"), color("accent")), 4.5);
}

TEST_P(Theme, IsWhatTheWindowIsPaintedWith)
{
    EXPECT_EQ(screen.window().color(), color("window"));
    const auto picture = screen.window().grabWindow();
    EXPECT_EQ(picture.pixelColor(2, picture.height() - 3), color("window"));
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Theme, testing::Bool());

}  // namespace

}  // namespace larkspan
