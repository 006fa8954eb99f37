#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/ChildScreen.h"
#include "bridge/CreateIncidentBridge.h"
#include "bridge/IncidentDetailBridge.h"
#include "bridge/RowListModel.h"
#include "bridge/ScreenBridge.h"
#include "bridge/values/IncidentRowValue.h"
#include "bridge/values/PlaceholderValue.h"
#include "incidents/StatusPageIncidentsView.h"

namespace larkspan::bridge {

/// A page's incidents for QML; worded and decided by `incidents::StatusPageIncidentsView`.
class IncidentListBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool showsList READ showsList NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::PlaceholderValue placeholder MEMBER placeholder_ NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ListModel* rows READ rows CONSTANT)
    /// The incident that is open, and the form of a new one; null while there is none.
    Q_PROPERTY(larkspan::bridge::IncidentDetailBridge* detail READ detail NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::CreateIncidentBridge* form READ form NOTIFY changed)

public:
    IncidentListBridge(std::shared_ptr<incidents::StatusPageIncidentsView> view, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    bool showsList() const { return view_->content() == presentation::Content::records; }
    ListModel* rows() { return &rows_; }
    IncidentDetailBridge* detail() const { return detail_.get(); }
    CreateIncidentBridge* form() const { return form_.get(); }

    Q_INVOKABLE void refresh() { view_->refresh(); }
    Q_INVOKABLE void open(const QString& id) { view_->openIncident(id.toStdString()); }
    Q_INVOKABLE void closeDetail() { view_->closeIncident(); }
    Q_INVOKABLE void openForm() { view_->openCreateIncident(); }

private:
    void readState() override;

    std::shared_ptr<incidents::StatusPageIncidentsView> view_;
    const ScreenUpdates& updates_;
    PlaceholderValue placeholder_;
    RowListModel<IncidentRowValue> rows_;
    ChildScreen<IncidentDetailBridge, incidents::IncidentDetailView> detail_;
    ChildScreen<CreateIncidentBridge, incidents::CreateIncidentView> form_;
};

}  // namespace larkspan::bridge
