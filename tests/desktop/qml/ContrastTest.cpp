#include <QColor>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExpression>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "Contrast.h"
#include "bridge/values/ToneNames.h"

namespace larkspan {

namespace {

/// What is painted over what, in the theme's own names: `tinted(Tone.Red, badgeOpacity)` is one, too.
using Ink = std::string;
/// From below to above, such as a card and the state of its row.
using Ground = std::vector<std::string>;

struct Pairs {
    std::string what;
    std::vector<Ink> inks;
    std::vector<Ground> grounds;
    double least;

    friend void PrintTo(const Pairs& pairs, std::ostream* stream) { *stream << pairs.what; }
};

constexpr double words = 4.5;
constexpr double shape = 3.0;
// Nobody can use what is disabled, but everybody can read it.
constexpr double disabledWords = 3.0;

const std::vector<Ink> tones{"green", "orange", "yellow", "red", "blue", "gray"};
const std::vector<Ground> surfaces{{"window"}, {"card"}};
const std::vector<Ground> cardRow{{"card"}, {"card", "hover"}, {"card", "pressed"}};
const std::vector<Ground> segmentsTrack{{"window", "track"}, {"card", "track"}};
const std::vector<Ground> prominent{{"accent"}, {"accent", "hoverOnFill"}, {"accent", "pressedOnFill"}};

/// For each tone the words of a pill or a badge, whose tint covers whatever its row shows.
std::vector<Pairs> pills()
{
    std::vector<Pairs> all;
    for (const auto* const tone : {"Green", "Orange", "Yellow", "Red", "Blue", "Gray", "Secondary"}) {
        for (const auto* const share : {"pillOpacity", "badgeOpacity"}) {
            const auto tint = std::string("tinted(") + tone + ", " + share + ")";
            all.push_back({std::string("WordsOnTheirTint_") + tone + "_" + share,
                {std::string("toneColor(") + tone + ")"}, {{"card", "pressed", tint}}, words});
        }
    }
    return all;
}

/// For each tone the words of a prominent button in that tone.
std::vector<Pairs> tintedButtons()
{
    std::vector<Pairs> all;
    for (const auto& tone : tones) {
        all.push_back({"WordsOfAProminentButtonIn_" + tone, {"toneText"},
            {{tone}, {tone, "hoverOnFill"}, {tone, "pressedOnFill"}}, words});
        all.push_back({"EdgeOfAProminentButtonIn_" + tone, {tone}, surfaces, shape});
    }
    return all;
}

std::vector<Pairs> everyPair()
{
    std::vector<Pairs> all{
        {"WordsOnWindowAndCard", {"text", "secondary", "accentOnCard"}, surfaces, words},
        {"StatusWordsOnWindowAndCard", tones, surfaces, words},
        {"WordsOfARow", {"text", "secondary", "accentOnCard"}, cardRow, words},
        {"StatusWordsOfARow", tones, cardRow, words},
        {"WordsOfAPickerOnTheWindow", {"text", "secondary"}, {{"window", "hover"}, {"window", "pressed"}}, words},

        {"WordsOfAButton", {"text", "red"}, cardRow, words},
        {"EdgeOfAButton", {"controlLine"}, surfaces, shape},
        {"EdgeOfAButtonUnderThePointer", {"controlLineHovered"},
            {{"window"}, {"card"}, {"card", "hover"}, {"card", "pressed"}}, shape},
        {"WordsOfTheProminentButton", {"accentText"}, prominent, words},
        {"EdgeOfTheProminentButton", {"accentLine"}, surfaces, shape},

        {"TypedWords", {"text"}, {{"field"}}, words},
        {"WordsOfAnEmptyField", {"secondary"}, {{"field"}}, words},
        {"ChosenWordsOfAField", {"accentText"}, {{"accent"}}, words},
        {"EdgeOfAField", {"controlLine", "controlLineHovered"}, {{"field"}, {"window"}, {"card"}}, shape},

        {"FocusRing", {"focus"}, {{"window"}, {"card"}, {"field"}, {"card", "hover"}, {"card", "pressed"}}, shape},

        {"WordsOfSegments", {"text"},
            {{"window", "track"}, {"card", "track"}, {"card", "track", "hover"}, {"card", "track", "pressed"}}, words},
        {"WordsOfTheChosenSegment", {"text"}, {{"segment"}}, words},
        {"EdgeOfTheChosenSegment", {"segmentLine"}, segmentsTrack, shape},

        {"EdgeOfASwitch", {"controlLine", "controlLineHovered", "accentLine"}, surfaces, shape},
        {"KnobOfASwitch", {"knob"}, {{"switchOff"}, {"accent"}}, shape},

        {"HandleOfAScrollBar", {"scrollHandle", "scrollHandleHovered", "scrollHandlePressed"},
            {{"window"}, {"card"}, {"field"}}, shape},

        {"WordsOfAMenu", {"text", "red"}, {{"raised"}}, words},
        {"WordsOfAMenusRowThatIsLit", {"accentText"}, {{"accent"}, {"accentPressed"}}, words},
        {"WordsOfAChoicesRow", {"text"}, {{"raised"}, {"raised", "hover"}, {"raised", "pressed"}}, words},
        {"WordsOfASheet", {"text", "secondary"}, {{"sheet"}}, words},
        {"EdgeOfAControlOnASheet", {"controlLine"}, {{"sheet"}, {"raised"}}, shape},
        {"FocusRingOnASheet", {"focus"}, {{"sheet"}, {"raised"}}, shape},
        {"WordsOfAButtonThatDeletes", {"dangerText"},
            {{"danger"}, {"danger", "hoverOnFill"}, {"danger", "pressedOnFill"}}, words},
        {"WordsOfATip", {"card"}, {{"text"}}, words},
        {"DisabledWords", {"disabledText"}, {{"window"}, {"card"}, {"disabledFill"}, {"raised"}, {"sheet"}},
            disabledWords},
    };
    for (const auto& more : {pills(), tintedButtons()}) all.insert(all.end(), more.begin(), more.end());
    return all;
}

struct Look {
    std::string name;
    bool isDark;
    bool hasHighContrast;

    friend void PrintTo(const Look& look, std::ostream* stream) { *stream << look.name; }
};

class EveryPairOfTheKit : public testing::TestWithParam<std::tuple<Look, Pairs>> {
protected:
    EveryPairOfTheKit()
    {
        engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent probe(&engine_);
        probe.setData("import QtQml; import Larkspan.Kit; QtObject { property QtObject theme: Theme }", {});
        probe_.reset(probe.create());
        theme_ = probe_->property("theme").value<QObject*>();
        theme_->setProperty("isDark", std::get<0>(GetParam()).isDark);
        theme_->setProperty("hasHighContrast", std::get<0>(GetParam()).hasHighContrast);
    }

    QColor color(const std::string& name)
    {
        auto code = QString::fromStdString(name);
        for (const auto* const tone : {"Secondary", "Green", "Orange", "Yellow", "Red", "Blue", "Gray"}) {
            code.replace(QStringLiteral("(%1").arg(QString::fromLatin1(tone)), QStringLiteral("(%1").arg(toneOf(tone)));
        }
        QQmlExpression expression(qmlContext(probe_.get()), theme_, code);
        const auto value = expression.evaluate();
        EXPECT_TRUE(value.canConvert<QColor>()) << name << ": " << expression.error().toString().toStdString();
        return value.value<QColor>();
    }

    QColor seen(const Ground& ground)
    {
        auto found = color(ground.front());
        for (std::size_t at = 1; at < ground.size(); ++at) found = over(found, color(ground[at]));
        return found;
    }

private:
    static int toneOf(const QString& name)
    {
        return bridge::Tone::staticMetaObject.enumerator(0).keyToValue(name.toLatin1());
    }
    static int toneOf(const char* name) { return toneOf(QString::fromLatin1(name)); }

    QQmlEngine engine_;
    std::unique_ptr<QObject> probe_;
    QObject* theme_ = nullptr;
};

TEST_P(EveryPairOfTheKit, IsToldApart)
{
    const auto& [look, pairs] = GetParam();
    for (const auto& ink : pairs.inks) {
        for (const auto& ground : pairs.grounds) {
            std::string where;
            for (const auto& layer : ground) where += " " + layer;
            EXPECT_GE(contrast(over(seen(ground), color(ink)), seen(ground)), pairs.least) << ink << " on" << where;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Kit, EveryPairOfTheKit,
    testing::Combine(testing::Values(Look{"Light", false, false}, Look{"Dark", true, false},
                         Look{"LightWithHighContrast", false, true}, Look{"DarkWithHighContrast", true, true}),
        testing::ValuesIn(everyPair())),
    [](const auto& instance) { return std::get<1>(instance.param).what + "_" + std::get<0>(instance.param).name; });

}  // namespace

}  // namespace larkspan
