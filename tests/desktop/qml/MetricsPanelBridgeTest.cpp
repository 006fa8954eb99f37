#include "bridge/metrics/MetricsPanelBridge.h"

#include <QMetaProperty>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "api/KestruneAPI.h"
#include "bridge/monitors/MonitorRowBridge.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/ScriptedService.h"

namespace larkspan::bridge {

namespace {

/// An open row whose metrics are there.
class MetricsForScreens : public testing::Test, public fakes::ScriptedService {
protected:
    MetricsForScreens()
    {
        row->showingMetrics = true;
        row->land({.avgMs = 250,
            .latency = std::vector<std::int64_t>{10, 20, 30},
            .regionStates = std::vector<model::RegionState>{{.regionId = "eu", .status = "up", .avgMs = 4}}});
        run();
    }

    MetricsPanelBridge& panel() { return *bridge.panel(); }

    /// Which properties are told by a signal, by name.
    static QStringList told(const QObject& object)
    {
        QStringList names;
        const auto& type = *object.metaObject();
        for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
            if (type.property(index).hasNotifySignal()) names << QString::fromUtf8(type.property(index).name());
        }
        return names;
    }

    fakes::FakeLocaleText locale;
    std::shared_ptr<monitors::MonitorRowView> row
        = std::make_shared<monitors::MonitorRowView>(monitors::MonitorRowView::Ports{main, api, locale}, "7");
    ScreenUpdates updates{main};
    MonitorRowBridge bridge{row, updates};
};

TEST_F(MetricsForScreens, TellOfASelectionAndOfNothingElse)
{
    const QSignalSpy ofTheRow(&bridge, &ScreenBridge::changed);
    const QSignalSpy ofThePanel(&panel(), &ScreenBridge::changed);
    panel().selectLatency(1);
    run();
    panel().selectLatency(2);
    run();
    EXPECT_EQ(ofTheRow.count(), 0);
    EXPECT_EQ(ofThePanel.count(), 2);
    EXPECT_EQ(told(panel()), QStringList{"selection"});
    EXPECT_EQ(panel().property("selection").value<SelectedLatencyValue>().value, QStringLiteral("30 ms"));
}

TEST_F(MetricsForScreens, AreMadeOnceWhateverIsSelectedAndHoweverOftenTheRowIsOpened)
{
    auto* const made = &panel();
    const auto curve = panel().curve();
    const auto figures = panel().figures();
    const auto regions = panel().regions();
    ASSERT_TRUE(curve.isShown());
    ASSERT_EQ(figures.size() + regions.size(), 2);

    panel().selectLatency(1);
    run();
    row->toggleMetrics();
    run();
    row->toggleMetrics();
    run();
    EXPECT_EQ(bridge.panel(), made);
    EXPECT_EQ(panel().curve(), curve) << "the same, not one that is equal";
    EXPECT_EQ(panel().figures().constData(), figures.constData());
    EXPECT_EQ(panel().regions().constData(), regions.constData());
}

}  // namespace

}  // namespace larkspan::bridge
