#include <QTest>

#include <gtest/gtest.h>

#include "ComponentsOnScreen.h"
#include "IncidentsOnScreen.h"
#include "KitWindow.h"
#include "Measures.h"

namespace larkspan {

namespace {

class NamesOfIncidents : public IncidentsOnScreen {
protected:
    void show(const std::string& title)
    {
        serve({incident("1", title)});
        press(Qt::Key_F5);
    }
};

TEST_F(NamesOfIncidents, OfSeveralLinesAreOneLineInTheListAndInTheDetail)
{
    show(R"(Login\nerrors)");
    EXPECT_EQ(names(Role::ListItem), QStringList{"Login errors"});
    openFirst();
    EXPECT_EQ(names(Role::Heading).count(QStringLiteral("Login errors")), 2) << "the header and the detail";
}

TEST_F(NamesOfIncidents, WithoutAVisibleCharacterHaveARowThatIsSeenAndOpened)
{
    show("\u200B");
    EXPECT_EQ(names(Role::ListItem), QStringList{"Unnamed"});
    EXPECT_TRUE(shows(QStringLiteral("Unnamed")));
    openFirst();
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Unnamed")));
}

TEST_F(NamesOfIncidents, FromRightToLeftStandAtTheirDot)
{
    show("שגיאות");
    const auto& title = item(Role::StaticText, QStringLiteral("שגיאות"));
    EXPECT_NEAR(inkOf(title).left(), frameOf(title).left(), 3);
}

class NamesOfComponents : public ComponentsOnScreen {};

TEST_F(NamesOfComponents, OfSeveralLinesAreEditedAsTheServiceHoldsThem)
{
    serve({component("1", R"(REST\nAPI)")});
    press(Qt::Key_F5);
    EXPECT_TRUE(names(Role::ListItem).contains(QStringLiteral("REST API")));
    open();
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("REST API")));
}

class LinesOfText : public testing::Test, public KitWindow {
protected:
    LinesOfText()
        : KitWindow(QStringLiteral(R"(
            Column {
                width: 300
                Label { objectName: "name"; width: 300; text: "שגיאות" }
                Label { objectName: "paragraph"; width: 300; wrapMode: Text.Wrap; text: "שגיאות" }
                PairedLine { objectName: "wide"; width: 300; label: Label { objectName: "label"; text: "Label" }
                    value: Label { objectName: "value"; text: "Value" } }
                PairedLine { objectName: "narrow"; width: 60; label: Label { objectName: "upper"; text: "Interval" }
                    value: Label { objectName: "lower"; text: "a long value"; wrapMode: Text.Wrap } }
                RecordHeader { objectName: "header"; width: 100; title: "A title that does not fit"; pills: [] }
                StatusDot { objectName: "dot"; tone: Tone.Green; word: "Up" }
            })"))
    {
    }

    QStringList tips() const
    {
        QStringList found;
        for (const auto* const each : window().findChildren<QObject*>()) {
            if (each->inherits("QQuickToolTip") && each->property("visible").toBool()) {
                found << each->property("text").toString();
            }
        }
        return found;
    }

    bool tellsUnderThePointer(const char* name, const char* tip)
    {
        const auto place = frameOf(item(QString::fromUtf8(name))).topLeft() + QPointF(4, 4);
        QTest::mouseMove(&window(), place.toPoint());
        return QTest::qWaitFor([this, tip] { return tips() == QStringList{QString::fromUtf8(tip)}; }, 3'000);
    }
};

TEST_F(LinesOfText, OfOneLineStandAtTheLeftInAnyScript)
{
    EXPECT_NEAR(inkOf(item(QStringLiteral("name"))).left(), 0, 3);
    EXPECT_NEAR(inkOf(item(QStringLiteral("paragraph"))).right(), 300, 3);
}

TEST_F(LinesOfText, HaveAValueAtTheEndOfItsLabelsLineOrBelowItIfThereIsNoRoom)
{
    EXPECT_EQ(frameOf(item(QStringLiteral("value"))).right(), 300);
    EXPECT_EQ(frameOf(item(QStringLiteral("value"))).top(), frameOf(item(QStringLiteral("label"))).top());
    const auto& lower = item(QStringLiteral("lower"));
    EXPECT_EQ(gapBelow(item(QStringLiteral("upper")), lower), 0);
    EXPECT_EQ(frameOf(lower).left(), 0);
    EXPECT_FALSE(item(QStringLiteral("upper")).property("truncated").toBool());
    EXPECT_FALSE(lower.property("truncated").toBool());
    EXPECT_EQ(frameOf(lower).bottom(), frameOf(item(QStringLiteral("narrow"))).bottom());
}

TEST_F(LinesOfText, OfACutTitleAreWholeInATip)
{
    EXPECT_TRUE(tellsUnderThePointer("header", "A title that does not fit"));
}

TEST_F(LinesOfText, OfADotAreItsStatusInATip)
{
    EXPECT_TRUE(tellsUnderThePointer("dot", "Up"));
}

}  // namespace

}  // namespace larkspan
