#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/metrics/MetricsPanelBridge.h"
#include "bridge/screens/ChildScreen.h"
#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/MarkerValue.h"
#include "monitors/MonitorRowView.h"

namespace larkspan::bridge {

/// The opened part of a monitor's row for QML; texts and decisions are those of `monitors::MonitorRowView`.
class MonitorRowBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool showsPanel READ showsPanel NOTIFY changed)
    /// Also while it is closed; null until the metrics have arrived.
    Q_PROPERTY(larkspan::bridge::MetricsPanelBridge* panel READ panel NOTIFY changed)
    /// Shown in place of the panel; empty while the panel is shown.
    Q_PROPERTY(larkspan::bridge::MarkerValue instead MEMBER instead_ NOTIFY changed)
    Q_PROPERTY(bool offersRetry READ offersRetry NOTIFY changed)

public:
    MonitorRowBridge(
        std::shared_ptr<monitors::MonitorRowView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool showsPanel() const { return view_->showsPanel(); }
    MetricsPanelBridge* panel() const { return panel_.get(); }
    bool offersRetry() const { return view_->offersRetry(); }

    Q_INVOKABLE void retry() { view_->retry(); }

private:
    void readState() override;

    const ScreenUpdates& updates_;
    std::shared_ptr<monitors::MonitorRowView> view_;
    ChildScreen<MetricsPanelBridge, monitors::MetricsPanel> panel_;
    MarkerValue instead_;
};

}  // namespace larkspan::bridge
