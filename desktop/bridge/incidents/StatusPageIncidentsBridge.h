#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ChildScreen.h"
#include "bridge/screens/ListBridge.h"
#include "incidents/StatusPageIncidentsView.h"

namespace larkspan::bridge {

class CreateIncidentBridge;
class IncidentDetailBridge;
struct IncidentRowValue;

/// A page's incidents for QML; texts and decisions are those of `incidents::StatusPageIncidentsView`. The base is named
/// in full, since QML's tools look for the name as it is written here.
class StatusPageIncidentsBridge : public larkspan::bridge::ListBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_MOC_INCLUDE("bridge/incidents/CreateIncidentBridge.h")
    Q_MOC_INCLUDE("bridge/incidents/IncidentDetailBridge.h")
    /// The opened incident, and the form of a new one; each is null if there is none.
    Q_PROPERTY(larkspan::bridge::IncidentDetailBridge* detail READ detail NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::CreateIncidentBridge* form READ form NOTIFY changed)

public:
    StatusPageIncidentsBridge(std::shared_ptr<incidents::StatusPageIncidentsView> view, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    ListModel* rows() override;
    IncidentDetailBridge* detail() const { return detail_.get(); }
    CreateIncidentBridge* form() const { return form_.get(); }

    Q_INVOKABLE void open(const QString& id) { view_->openIncident(id.toStdString()); }
    Q_INVOKABLE void openForm() { view_->openCreateIncident(); }

private:
    void readState() override;

    std::shared_ptr<incidents::StatusPageIncidentsView> view_;
    RowListModel<IncidentRowValue>* const rows_;
    ChildScreen<IncidentDetailBridge, incidents::IncidentDetailView> detail_;
    ChildScreen<CreateIncidentBridge, incidents::CreateIncidentView> form_;
};

}  // namespace larkspan::bridge
