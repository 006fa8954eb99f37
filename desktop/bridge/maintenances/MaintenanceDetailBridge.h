#pragma once

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/messages/MessageBridge.h"
#include "bridge/screens/DateTimePickerBridge.h"
#include "bridge/screens/EditableDetailBridge.h"
#include "bridge/values/ActionButtonValue.h"
#include "bridge/values/MarkerValue.h"
#include "bridge/values/PillValue.h"
#include "bridge/values/TimelineRowValue.h"
#include "maintenances/MaintenanceDetailView.h"

namespace larkspan::bridge {

/// An opened maintenance for QML; texts and decisions are those of `maintenances::MaintenanceDetailView`.
class MaintenanceDetailBridge : public larkspan::bridge::EditableDetailBridge {
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
    Q_PROPERTY(QString editedTitle READ editedTitle NOTIFY changed)
    Q_PROPERTY(QString editedMessage READ editedMessage NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::DateTimePickerBridge* editedScheduledFor READ editedScheduledFor CONSTANT)
    Q_PROPERTY(larkspan::bridge::DateTimePickerBridge* editedScheduledUntil READ editedScheduledUntil CONSTANT)
    Q_PROPERTY(larkspan::bridge::MarkerValue editedLength READ editedLength NOTIFY changed)

public:
    MaintenanceDetailBridge(std::shared_ptr<maintenances::MaintenanceDetailView> view, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    QString title() const { return words(view_->title()); }
    QString maintenanceTitle() const { return words(view_->currentMaintenance->title); }
    bool showsDescription() const { return view_->showsDescription(); }
    MessageBridge* message() { return &message_; }
    QString editedTitle() const { return wholeText(*view_->editedTitle); }
    QString editedMessage() const { return wholeText(*view_->editedMessage); }
    DateTimePickerBridge* editedScheduledFor() { return &editedScheduledFor_; }
    DateTimePickerBridge* editedScheduledUntil() { return &editedScheduledUntil_; }
    MarkerValue editedLength() const { return MarkerValue::of(view_->editedLength()); }

    Q_INVOKABLE void press(const QString& button) { view_->press(button.toStdString()); }
    Q_INVOKABLE void editTitle(const QString& text) { view_->editedTitle = text.toStdString(); }
    Q_INVOKABLE void editMessage(const QString& text) { view_->editedMessage = text.toStdString(); }
    Q_INVOKABLE void saveEdits() { view_->saveEdits(); }

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
