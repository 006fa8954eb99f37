#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ChildScreen.h"
#include "bridge/screens/ListBridge.h"
#include "maintenances/StatusPageMaintenancesView.h"

namespace larkspan::bridge {

class CreateMaintenanceBridge;
class MaintenanceDetailBridge;
struct MaintenanceRowValue;

/// A page's maintenances for QML; texts and decisions are those of `maintenances::StatusPageMaintenancesView`. The base
/// is named in full, since QML's tools look for the name as it is written here.
class StatusPageMaintenancesBridge : public larkspan::bridge::ListBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_MOC_INCLUDE("bridge/maintenances/CreateMaintenanceBridge.h")
    Q_MOC_INCLUDE("bridge/maintenances/MaintenanceDetailBridge.h")
    /// The opened maintenance, and the form of a new one; each is null if there is none.
    Q_PROPERTY(larkspan::bridge::MaintenanceDetailBridge* detail READ detail NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::CreateMaintenanceBridge* form READ form NOTIFY changed)

public:
    StatusPageMaintenancesBridge(std::shared_ptr<maintenances::StatusPageMaintenancesView> view,
        const ScreenUpdates& updates, QObject* parent = nullptr);

    ListModel* rows() override;
    MaintenanceDetailBridge* detail() const { return detail_.get(); }
    CreateMaintenanceBridge* form() const { return form_.get(); }

    Q_INVOKABLE void open(const QString& id) { view_->openMaintenance(id.toStdString()); }
    Q_INVOKABLE void openForm() { view_->openCreateMaintenance(); }

private:
    void readState() override;

    std::shared_ptr<maintenances::StatusPageMaintenancesView> view_;
    RowListModel<MaintenanceRowValue>* const rows_;
    ChildScreen<MaintenanceDetailBridge, maintenances::MaintenanceDetailView> detail_;
    ChildScreen<CreateMaintenanceBridge, maintenances::CreateMaintenanceView> form_;
};

}  // namespace larkspan::bridge
