#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/lists/ListModel.h"
#include "bridge/screens/ChildScreen.h"
#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/FactValue.h"
#include "bridge/values/HeadlineValue.h"
#include "bridge/values/MarkerValue.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan::bridge {

class StatusPageComponentsBridge;
class StatusPageIncidentsBridge;
class StatusPageMaintenancesBridge;
class StatusPageMonitorsBridge;
struct ActivityRowValue;

/// An opened page for QML: its tabs and its overview; texts and decisions are those of
/// `workspace::StatusPageDetailView`.
class StatusPageDetailBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_MOC_INCLUDE("bridge/components/StatusPageComponentsBridge.h")
    Q_MOC_INCLUDE("bridge/incidents/StatusPageIncidentsBridge.h")
    Q_MOC_INCLUDE("bridge/maintenances/StatusPageMaintenancesBridge.h")
    Q_MOC_INCLUDE("bridge/monitors/StatusPageMonitorsBridge.h")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString pickerLabel READ pickerLabel CONSTANT)
    Q_PROPERTY(QList<QString> tabs READ tabs CONSTANT)
    Q_PROPERTY(int selectedTab READ selectedTab NOTIFY changed)
    Q_PROPERTY(bool isOverview READ isOverview NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::HeadlineValue status MEMBER status_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::FactValue> information MEMBER information_ NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ListModel* activity READ activity CONSTANT)
    Q_PROPERTY(larkspan::bridge::MarkerValue quiet MEMBER quiet_ NOTIFY changed)
    Q_PROPERTY(QString about MEMBER about_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::FactValue> uptime MEMBER uptime_ NOTIFY changed)
    Q_PROPERTY(QString moreUptime MEMBER moreUptime_ NOTIFY changed)
    /// The screen of the tab "Incidents"; null while another is selected.
    Q_PROPERTY(larkspan::bridge::StatusPageIncidentsBridge* incidents READ incidents NOTIFY changed)
    /// The screen of the tab "Monitors"; null while another is selected.
    Q_PROPERTY(larkspan::bridge::StatusPageMonitorsBridge* monitors READ monitors NOTIFY changed)
    /// The screen of the tab "Components"; null while another is selected.
    Q_PROPERTY(larkspan::bridge::StatusPageComponentsBridge* components READ components NOTIFY changed)
    /// The screen of the tab "Maintenances"; null while another is selected.
    Q_PROPERTY(larkspan::bridge::StatusPageMaintenancesBridge* maintenances READ maintenances NOTIFY changed)

public:
    StatusPageDetailBridge(
        std::shared_ptr<workspace::StatusPageDetailView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    QString title() const { return nameWords(view_->page->name); }
    QString pickerLabel() const { return words(workspace::StatusPageDetailView::pickerLabel); }
    QList<QString> tabs() const;
    int selectedTab() const { return static_cast<int>(view_->selectedTab()); }
    bool isOverview() const { return view_->selectedTab() == workspace::StatusPageDetailView::Tab::overview; }
    ListModel* activity();
    StatusPageIncidentsBridge* incidents() const { return incidents_.get(); }
    StatusPageMonitorsBridge* monitors() const { return monitors_.get(); }
    StatusPageComponentsBridge* components() const { return components_.get(); }
    StatusPageMaintenancesBridge* maintenances() const { return maintenances_.get(); }

    Q_INVOKABLE void select(int tab);
    Q_INVOKABLE void selectNext() { view_->selectNext(); }
    Q_INVOKABLE void selectPrevious() { view_->selectPrevious(); }
    Q_INVOKABLE void refresh() { view_->refresh(); }
    Q_INVOKABLE void openPublicURL() { view_->openPublicURL(); }

private:
    void readState() override;

    std::shared_ptr<workspace::StatusPageDetailView> view_;
    const ScreenUpdates& updates_;
    HeadlineValue status_;
    QList<FactValue> information_;
    RowListModel<ActivityRowValue>* const activity_;
    MarkerValue quiet_;
    QString about_;
    QList<FactValue> uptime_;
    QString moreUptime_;
    ChildScreen<StatusPageIncidentsBridge, incidents::StatusPageIncidentsView> incidents_;
    ChildScreen<StatusPageMonitorsBridge, monitors::StatusPageMonitorsView> monitors_;
    ChildScreen<StatusPageComponentsBridge, components::StatusPageComponentsView> components_;
    ChildScreen<StatusPageMaintenancesBridge, maintenances::StatusPageMaintenancesView> maintenances_;
};

}  // namespace larkspan::bridge
