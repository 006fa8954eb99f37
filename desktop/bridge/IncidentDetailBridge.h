#pragma once

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/MessageBridge.h"
#include "bridge/ScreenBridge.h"
#include "bridge/values/ActionButtonValue.h"
#include "bridge/values/ConfirmationValue.h"
#include "bridge/values/PillValue.h"
#include "bridge/values/TimelineRowValue.h"
#include "incidents/IncidentDetailView.h"

namespace larkspan::bridge {

/// An opened incident for QML; worded and decided by `incidents::IncidentDetailView`.
class IncidentDetailBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString incidentTitle READ incidentTitle NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::PillValue> pills MEMBER pills_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::TimelineRowValue> timeline MEMBER timeline_ NOTIFY changed)
    Q_PROPERTY(QString duration READ duration NOTIFY changed)
    Q_PROPERTY(QString assignedTo READ assignedTo NOTIFY changed)
    Q_PROPERTY(bool showsDescription READ showsDescription NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::MessageBridge* message READ message CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::ActionButtonValue> buttons MEMBER buttons_ NOTIFY changed)
    Q_PROPERTY(bool isDeleteEnabled READ isDeleteEnabled NOTIFY changed)
    Q_PROPERTY(QString closeLabel READ closeLabel NOTIFY changed)
    Q_PROPERTY(bool isEditing READ isEditing NOTIFY changed)
    Q_PROPERTY(QString editMessage READ editMessage NOTIFY changed)
    Q_PROPERTY(bool isSaveEnabled READ isSaveEnabled NOTIFY changed)
    Q_PROPERTY(bool showsDeleteConfirmation READ showsDeleteConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue deleteConfirmation READ deleteConfirmation CONSTANT)
    Q_PROPERTY(bool showsDiscardConfirmation READ showsDiscardConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue discardConfirmation READ discardConfirmation CONSTANT)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString alert READ alert NOTIFY changed)

public:
    IncidentDetailBridge(
        std::shared_ptr<incidents::IncidentDetailView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    QString title() const { return words(view_->title()); }
    QString incidentTitle() const { return words(view_->incident->title); }
    QString duration() const { return words(view_->duration()); }
    QString assignedTo() const { return words(view_->assignedTo()); }
    bool showsDescription() const { return view_->showsDescription(); }
    MessageBridge* message() { return &message_; }
    bool isDeleteEnabled() const { return view_->isDeleteEnabled(); }
    QString closeLabel() const { return words(view_->closeLabel()); }
    bool isEditing() const { return *view_->isEditing; }
    QString editMessage() const { return words(*view_->editMessage); }
    bool isSaveEnabled() const { return view_->isSaveEnabled(); }
    bool showsDeleteConfirmation() const { return *view_->showDeleteConfirmation; }
    ConfirmationValue deleteConfirmation() const;
    bool showsDiscardConfirmation() const { return *view_->showDiscardConfirmation; }
    ConfirmationValue discardConfirmation() const { return ConfirmationValue::of(presentation::discardConfirmation); }
    bool isBusy() const { return *view_->action->isInProgress; }
    QString alert() const { return words(*view_->action->alert); }

    Q_INVOKABLE void press(const QString& button) { view_->press(button.toStdString()); }
    Q_INVOKABLE void edit(const QString& text) { view_->editMessage = text.toStdString(); }
    Q_INVOKABLE void saveUpdate() { view_->saveUpdate(); }
    Q_INVOKABLE void close() { view_->close(); }
    Q_INVOKABLE void requestClose() { view_->requestClose(); }
    Q_INVOKABLE void keepEditing() { view_->keepEditing(); }
    Q_INVOKABLE void discardChanges() { view_->discardChanges(); }
    Q_INVOKABLE void confirmDelete() { view_->confirmDelete(); }
    Q_INVOKABLE void cancelDelete() { view_->cancelDelete(); }
    Q_INVOKABLE void deleteIncident() { view_->deleteIncident(); }
    Q_INVOKABLE void dismissAlert() { view_->action->dismissAlert(); }

private:
    void readState() override;

    std::shared_ptr<incidents::IncidentDetailView> view_;
    QList<PillValue> pills_;
    QList<TimelineRowValue> timeline_;
    MessageBridge message_;
    QList<ActionButtonValue> buttons_;
};

}  // namespace larkspan::bridge
