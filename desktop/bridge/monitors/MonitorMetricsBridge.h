#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/LatencyGraphValue.h"
#include "bridge/values/MarkerValue.h"
#include "bridge/values/MetricRowValue.h"
#include "bridge/values/RegionRowValue.h"
#include "bridge/values/Words.h"
#include "monitors/MonitorRowView.h"

namespace larkspan::bridge {

/// The opened part of a monitor's row for QML; texts and decisions are those of `monitors::MonitorRowView`.
class MonitorMetricsBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool showsPanel READ showsPanel NOTIFY changed)
    /// Shown in place of the panel; empty while the panel is shown.
    Q_PROPERTY(larkspan::bridge::MarkerValue instead MEMBER instead_ NOTIFY changed)
    Q_PROPERTY(bool offersRetry READ offersRetry NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::LatencyGraphValue graph MEMBER graph_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::MetricRowValue> figures MEMBER figures_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::RegionRowValue> regions MEMBER regions_ NOTIFY changed)
    Q_PROPERTY(QString moreRegions READ moreRegions NOTIFY changed)

public:
    MonitorMetricsBridge(
        std::shared_ptr<monitors::MonitorRowView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool showsPanel() const { return view_->showsPanel(); }
    QString moreRegions() const { return words(view_->moreRegions()); }
    bool offersRetry() const { return view_->offersRetry(); }

    Q_INVOKABLE void retry() { view_->retry(); }
    Q_INVOKABLE void selectLatency(double position) { view_->selectLatency(position); }

private:
    void readState() override;

    std::shared_ptr<monitors::MonitorRowView> view_;
    MarkerValue instead_;
    LatencyGraphValue graph_;
    QList<MetricRowValue> figures_;
    QList<RegionRowValue> regions_;
};

}  // namespace larkspan::bridge
