#pragma once

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <memory>
#include <string>

#include "bridge/screens/ChildScreen.h"
#include "bridge/screens/ListBridge.h"
#include "monitors/StatusPageMonitorsView.h"

namespace larkspan::bridge {

class MonitorDetailBridge;
class MonitorRowBridge;
struct MonitorRowValue;

/// A page's monitors for QML; texts and decisions are those of `monitors::StatusPageMonitorsView`. The base is named in
/// full, since QML's tools look for the name as it is written here.
class StatusPageMonitorsBridge : public larkspan::bridge::ListBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_MOC_INCLUDE("bridge/monitors/MonitorDetailBridge.h")
    Q_MOC_INCLUDE("bridge/monitors/MonitorRowBridge.h")
    /// The monitor that is open; null while there is none.
    Q_PROPERTY(larkspan::bridge::MonitorDetailBridge* detail READ detail NOTIFY changed)

public:
    StatusPageMonitorsBridge(std::shared_ptr<monitors::StatusPageMonitorsView> view, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    ListModel* rows() override;
    MonitorDetailBridge* detail() const { return detail_.get(); }

    Q_INVOKABLE void toggleMetrics(const QString& id) { view_->toggleMetrics(id.toStdString()); }
    Q_INVOKABLE void press(const QString& id, const QString& button);
    Q_INVOKABLE void open(const QString& id) { view_->openMonitor(id.toStdString()); }
    Q_INVOKABLE void closeDetail() { view_->closeMonitor(); }
    /// The opened part of that monitor's row; null for a row that was never opened.
    Q_INVOKABLE larkspan::bridge::MonitorRowBridge* metricsOf(const QString& id) const;

private:
    /// A row that was opened; the list shows parts of it too.
    struct OpenedRow {
        ChildScreen<MonitorRowBridge, monitors::MonitorRowView> metrics;
        support::Subscription changes;
    };

    void readState() override;
    // Called before the objects that they show are destroyed.
    void closeRowsThatLeft();
    void followOpenedRows();

    std::shared_ptr<monitors::StatusPageMonitorsView> view_;
    std::map<std::string, OpenedRow> openedRows_;
    RowListModel<MonitorRowValue>* const rows_;
    ChildScreen<MonitorDetailBridge, monitors::MonitorDetailView> detail_;
};

}  // namespace larkspan::bridge
