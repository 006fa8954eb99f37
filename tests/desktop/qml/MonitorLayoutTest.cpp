#include <gtest/gtest.h>

#include "Measures.h"
#include "MonitorsOnScreen.h"

namespace larkspan {

namespace {

const std::string trends = R"({"metrics": {"1": {"avg_ms": 312, "uptime_percentage": 99.5, "response_time_trend": "up",
    "latency": [180, 240, 210], "region_states": [{"region_id": "eu", "region_name": "Frankfurt", "status": "up",
    "avg_ms": 121}]}}})";

class MonitorLayout : public MonitorsOnScreen {
protected:
    QQuickItem& label(const char* text) const { return item(Role::StaticText, QString::fromUtf8(text)); }
    QQuickItem& button(const char* name) const { return item(Role::Button, QString::fromUtf8(name)); }
    /// The row of the first monitor.
    QQuickItem& row() const { return item(Role::ListItem, QStringLiteral("Gateway")); }
    static QQuickItem& symbol(const QQuickItem& root, const char* name)
    {
        return *partOf(root, "name", QString::fromUtf8(name));
    }

    /// Loads metrics and closes them, so that their badges show.
    void showBadges()
    {
        openMetrics();
        choose("Hide latency graph");
    }
    void openMetrics()
    {
        transport.script(metricsURL, 200, trends);
        choose("Show latency graph");
    }
};

TEST_F(MonitorLayout, OfARowHasTwelvePointsBetweenIconNamePillDisclosureAndDetails)
{
    const auto& icon = symbol(row(), "checkmark.circle.fill");
    const auto& words = *label("Gateway").parentItem();
    const auto& pill = shapeAround(label("HTTP"));
    EXPECT_EQ(gapBeside(icon, words), 12);
    EXPECT_EQ(gapBeside(words, pill), 12);
    EXPECT_EQ(gapBeside(pill, button("Show latency graph")), 12);
    EXPECT_EQ(gapBeside(button("Show latency graph"), button("Monitor Details")), 12);
    for (const auto* const part : {&icon, &pill, static_cast<const QQuickItem*>(&button("Monitor Details"))}) {
        EXPECT_NEAR(frameOf(*part).center().y(), frameOf(words).center().y(), 1);
    }
}

TEST_F(MonitorLayout, OfARowIsTheNameOverTheStatusInItsColor)
{
    EXPECT_EQ(label("Gateway").height(), 22);
    EXPECT_EQ(fontOf(label("Gateway")).weight(), QFont::DemiBold);
    EXPECT_EQ(sizeOf(label("Gateway")), type::body);
    EXPECT_EQ(sizeOf(label("Operational")), type::caption);
    EXPECT_EQ(colorOf(label("Operational")), light::green);
    EXPECT_EQ(colorOf(symbol(row(), "checkmark.circle.fill")), light::green);
    EXPECT_EQ(colorOf(label("Paused")), light::secondary);
}

TEST_F(MonitorLayout, OfARowHasItsTypeInASmallBoldPill)
{
    EXPECT_EQ(PillMeasures::of(label("HTTP")),
        (PillMeasures{.beside = 6, .aboveAndBelow = 3, .size = type::caption2, .weight = QFont::Bold, .tint = 0.15}));
    EXPECT_EQ(colorOf(label("HTTP")), light::secondary);
}

TEST_F(MonitorLayout, OfARowHasItsDisclosureAsSmallAsACaptionAndSecondary)
{
    const auto& chevron = symbol(button("Show latency graph"), "chevron.down");
    EXPECT_EQ(chevron.width(), 13);
    EXPECT_EQ(colorOf(chevron), light::secondary);
    EXPECT_EQ(colorOf(symbol(button("Monitor Details"), "info.circle")), light::primary);
}

TEST_F(MonitorLayout, OfAMetricsBadgeIsTheFigureOverItsNameBesideItsIcon)
{
    showBadges();
    const auto& value = label("312ms");
    const auto& name = label("Avg");
    const auto& icon = symbol(row(), "clock");
    EXPECT_EQ(PillMeasures::of(value),
        (PillMeasures{.beside = 8, .aboveAndBelow = 6, .size = type::caption, .weight = QFont::Bold, .tint = 0.12}));
    EXPECT_EQ(shapeAround(value).property("radius").toInt(), 8);
    EXPECT_EQ(gapBeside(icon, value), 6);
    EXPECT_EQ(frameOf(icon).left() - frameOf(shapeAround(value)).left(), 8);
    EXPECT_EQ(gapBelow(value, name), 1);
    EXPECT_EQ(frameOf(name).left(), frameOf(value).left());
    EXPECT_EQ(frameOf(shapeAround(value)).bottom() - frameOf(name).bottom(), 6);
    EXPECT_EQ(sizeOf(name), type::caption2);
    EXPECT_EQ(colorOf(name), light::secondary);
    EXPECT_EQ(colorOf(value), light::blue);
    EXPECT_EQ(colorOf(label("99.5%")), light::orange);
}

TEST_F(MonitorLayout, OfATrendsBadgeIsIconWordAndNameSideBySide)
{
    showBadges();
    const auto& word = label("Up");
    const auto& name = label("RT");
    const auto& icon = symbol(row(), "arrow.up.right");
    EXPECT_EQ(gapBeside(icon, word), 4);
    EXPECT_EQ(gapBeside(word, name), 4);
    EXPECT_NEAR(frameOf(word).center().y(), frameOf(name).center().y(), 1);
    EXPECT_NEAR(frameOf(word).center().y(), frameOf(icon).center().y(), 1);
    const auto content = frameOf(icon) | frameOf(word) | frameOf(name);
    const auto shape = frameOf(shapeAround(word));
    EXPECT_EQ(shape.left(), content.left() - 8);
    EXPECT_EQ(shape.right(), content.right() + 8);
    EXPECT_EQ(shapeAround(word).implicitHeight(), content.height() + 2 * 6);
    EXPECT_EQ(shapeAround(word).property("radius").toInt(), 8);
    EXPECT_EQ(tintOf(word), 0.12);
    EXPECT_EQ(sizeOf(word), type::caption);
    EXPECT_EQ(fontOf(word).weight(), QFont::Bold);
    EXPECT_EQ(sizeOf(name), type::caption2);
    EXPECT_EQ(colorOf(name), light::secondary);
    EXPECT_EQ(colorOf(icon), light::green);
}

TEST_F(MonitorLayout, OfThePanelIsTheGraphTheFiguresBelowALineAndTheRegionsBelowAnother)
{
    openMetrics();
    const auto& graph = item(Role::Slider, QStringLiteral("Latency graph"));
    const auto lines = partsOf(*graph.parentItem(), "color", QColor("#e3e6ea"));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_GE(gapBelow(graph, *lines[0]), 0);
    EXPECT_GE(gapBelow(*lines[0], label("Avg Response")), 0);
    EXPECT_GE(gapBelow(label("Avg Response"), *lines[1]), 0);
    EXPECT_GE(gapBelow(*lines[1], label("Region States")), 0);
    EXPECT_GE(gapBelow(label("Region States"), label("Frankfurt")), 0);
    EXPECT_GE(gapBelow(label("Frankfurt"), button("Pause")), 0);
    for (const auto* const line : lines) EXPECT_EQ(line->height(), 1);
}

TEST_F(MonitorLayout, OfARowHasItsActionsInSmallButtonsWithASymbol)
{
    const auto& details = button("Monitor Details");
    for (const auto& [name, sign] : {std::pair{"Pause", "pause.fill"}, {"Check Now", "arrow.clockwise"}}) {
        EXPECT_LT(button(name).height(), details.height()) << name;
        EXPECT_EQ(colorOf(symbol(button(name), sign)), light::primary) << name;
    }
    EXPECT_EQ(frameOf(button("Pause")).top(), frameOf(button("Check Now")).top());
    EXPECT_GE(gapBelow(label("Operational"), button("Pause")), 0);
}

TEST_F(MonitorLayout, OfThePanelHasItsFiguresAtBothEnds)
{
    openMetrics();
    const auto& figure = label("Avg Response");
    const auto& value = label("312 ms");
    const auto& line = *figure.parentItem();
    EXPECT_EQ(frameOf(figure).left(), frameOf(line).left());
    EXPECT_EQ(frameOf(value).right(), frameOf(line).right());
    for (const auto* const text : {&figure, &value}) EXPECT_EQ(sizeOf(*text), type::subheadline);
    EXPECT_EQ(colorOf(figure), light::secondary);
    EXPECT_EQ(colorOf(value), light::orange);
    EXPECT_EQ(fontOf(value).weight(), QFont::Bold);
    EXPECT_EQ(fontOf(figure).weight(), QFont::Normal);
}

TEST_F(MonitorLayout, OfThePanelHasItsRegionsAsDotNameAndAverage)
{
    openMetrics();
    const auto& name = label("Frankfurt");
    const auto& average = label("121ms");
    const auto& line = *name.parentItem();
    const auto& dot = *partOf(line, "radius", 4);
    EXPECT_EQ(dot.width(), 8);
    EXPECT_EQ(dot.height(), 8);
    EXPECT_EQ(colorOf(dot), light::green);
    EXPECT_EQ(frameOf(average).right(), frameOf(line).right());
    for (const auto* const text : {"Region States", "Frankfurt", "121ms"})
        EXPECT_EQ(sizeOf(label(text)), type::caption);
    EXPECT_EQ(colorOf(label("Region States")), light::secondary);
    EXPECT_EQ(colorOf(name), light::primary);
    EXPECT_EQ(colorOf(average), light::secondary);
    EXPECT_EQ(name.property("maximumLineCount").toInt(), 1);
}

TEST_F(MonitorLayout, OfMetricsThatFailIsACaptionOverItsButton)
{
    transport.script(metricsURL, 200, R"({"metrics": {}})");
    choose("Show latency graph");
    const auto& reason = label("The server returned no metrics for this monitor.");
    EXPECT_EQ(sizeOf(reason), type::caption);
    EXPECT_LT(frameOf(reason).bottom(), frameOf(button("Retry")).top());
}

}  // namespace

}  // namespace larkspan
