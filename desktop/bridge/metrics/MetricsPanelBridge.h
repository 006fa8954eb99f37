#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/metrics/LatencyCurveValue.h"
#include "bridge/metrics/MetricRowValue.h"
#include "bridge/metrics/RegionRowValue.h"
#include "bridge/metrics/SelectedLatencyValue.h"
#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/Words.h"
#include "monitors/MetricsPanel.h"

namespace larkspan::bridge {

/// A monitor's metrics of a day for QML; worded and decided by `monitors::MetricsPanel`. Only the selection changes.
class MetricsPanelBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(larkspan::bridge::LatencyCurveValue curve READ curve CONSTANT)
    Q_PROPERTY(larkspan::bridge::SelectedLatencyValue selection MEMBER selection_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::MetricRowValue> figures READ figures CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::RegionRowValue> regions READ regions CONSTANT)
    Q_PROPERTY(QString moreRegions READ moreRegions CONSTANT)

public:
    MetricsPanelBridge(
        std::shared_ptr<monitors::MetricsPanel> panel, const ScreenUpdates& updates, QObject* parent = nullptr);

    LatencyCurveValue curve() const { return {panel_->curve}; }
    const QList<MetricRowValue>& figures() const { return figures_; }
    const QList<RegionRowValue>& regions() const { return regions_; }
    QString moreRegions() const { return words(panel_->moreRegions); }

    Q_INVOKABLE void selectLatency(double position) { panel_->selectLatency(position); }

private:
    void readState() override;

    const std::shared_ptr<monitors::MetricsPanel> panel_;
    const QList<MetricRowValue> figures_;
    const QList<RegionRowValue> regions_;
    SelectedLatencyValue selection_;
};

}  // namespace larkspan::bridge
