#pragma once

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/DateTimePickerBridge.h"
#include "bridge/MessageBridge.h"
#include "bridge/ScreenBridge.h"
#include "bridge/values/ActionButtonValue.h"
#include "bridge/values/ConfirmationValue.h"
#include "bridge/values/PillValue.h"
#include "bridge/values/TimelineRowValue.h"
#include "maintenances/MaintenanceDetailView.h"

namespace larkspan::bridge {

/// An opened maintenance for QML; worded and decided by `maintenances::MaintenanceDetailView`.
class MaintenanceDetailBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString maintenanceTitle READ maintenanceTitle NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::PillValue> pills MEMBER pills_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::TimelineRowValue> timeline MEMBER timeline_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::TimelineRowValue> recordRows MEMBER recordRows_ NOTIFY changed)
    Q_PROPERTY(bool showsDescription READ showsDescription NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::MessageBridge* message READ message CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::ActionButtonValue> buttons MEMBER buttons_ NOTIFY changed)
    Q_PROPERTY(bool isMenuEnabled READ isMenuEnabled NOTIFY changed)
    Q_PROPERTY(QString closeLabel READ closeLabel NOTIFY changed)
    Q_PROPERTY(bool isEditing READ isEditing NOTIFY changed)
    Q_PROPERTY(QString editedTitle READ editedTitle NOTIFY changed)
    Q_PROPERTY(QString editedMessage READ editedMessage NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::DateTimePickerBridge* editedScheduledFor READ editedScheduledFor CONSTANT)
    Q_PROPERTY(larkspan::bridge::DateTimePickerBridge* editedScheduledUntil READ editedScheduledUntil CONSTANT)
    Q_PROPERTY(bool isSaveEnabled READ isSaveEnabled NOTIFY changed)
    Q_PROPERTY(bool showsDeleteConfirmation READ showsDeleteConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue deleteConfirmation READ deleteConfirmation CONSTANT)
    Q_PROPERTY(bool showsDiscardConfirmation READ showsDiscardConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue discardConfirmation READ discardConfirmation CONSTANT)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString alert READ alert NOTIFY changed)

public:
    MaintenanceDetailBridge(std::shared_ptr<maintenances::MaintenanceDetailView> view, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    QString title() const { return words(view_->title()); }
    QString maintenanceTitle() const { return words(view_->currentMaintenance->title); }
    bool showsDescription() const { return view_->showsDescription(); }
    MessageBridge* message() { return &message_; }
    bool isMenuEnabled() const { return view_->isMenuEnabled(); }
    QString closeLabel() const { return words(view_->closeLabel()); }
    bool isEditing() const { return *view_->isEditing; }
    QString editedTitle() const { return words(*view_->editedTitle); }
    QString editedMessage() const { return words(*view_->editedMessage); }
    DateTimePickerBridge* editedScheduledFor() { return &editedScheduledFor_; }
    DateTimePickerBridge* editedScheduledUntil() { return &editedScheduledUntil_; }
    bool isSaveEnabled() const { return view_->isSaveEnabled(); }
    bool showsDeleteConfirmation() const { return *view_->showDeleteConfirmation; }
    ConfirmationValue deleteConfirmation() const;
    bool showsDiscardConfirmation() const { return *view_->showDiscardConfirmation; }
    ConfirmationValue discardConfirmation() const { return ConfirmationValue::of(presentation::discardConfirmation); }
    bool isBusy() const { return *view_->action->isInProgress; }
    QString alert() const { return words(*view_->action->alert); }

    Q_INVOKABLE void press(const QString& button) { view_->press(button.toStdString()); }
    Q_INVOKABLE void beginEditing() { view_->beginEditing(); }
    Q_INVOKABLE void editTitle(const QString& text) { view_->editedTitle = text.toStdString(); }
    Q_INVOKABLE void editMessage(const QString& text) { view_->editedMessage = text.toStdString(); }
    Q_INVOKABLE void saveEdits() { view_->saveEdits(); }
    Q_INVOKABLE void close() { view_->close(); }
    Q_INVOKABLE void requestClose() { view_->requestClose(); }
    Q_INVOKABLE void keepEditing() { view_->keepEditing(); }
    Q_INVOKABLE void discardChanges() { view_->discardChanges(); }
    Q_INVOKABLE void confirmDelete() { view_->confirmDelete(); }
    Q_INVOKABLE void cancelDelete() { view_->cancelDelete(); }
    Q_INVOKABLE void removeMaintenance() { view_->removeMaintenance(); }
    Q_INVOKABLE void dismissAlert() { view_->action->dismissAlert(); }

private:
    void readState() override;

    std::shared_ptr<maintenances::MaintenanceDetailView> view_;
    QList<PillValue> pills_;
    QList<TimelineRowValue> timeline_;
    QList<TimelineRowValue> recordRows_;
    MessageBridge message_;
    DateTimePickerBridge editedScheduledFor_;
    DateTimePickerBridge editedScheduledUntil_;
    QList<ActionButtonValue> buttons_;
};

}  // namespace larkspan::bridge
