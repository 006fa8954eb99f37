#pragma once

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/ScreenBridge.h"
#include "bridge/values/ChoiceValue.h"
#include "bridge/values/ConfirmationValue.h"
#include "incidents/CreateIncidentView.h"

namespace larkspan::bridge {

/// The form of a new incident for QML; worded and decided by `incidents::CreateIncidentView`.
class CreateIncidentBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool notifySubscribers READ notifySubscribers WRITE setNotifySubscribers NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::ChoiceValue> groups MEMBER groups_ NOTIFY changed)
    Q_PROPERTY(QString selectedGroup READ selectedGroup NOTIFY changed)
    Q_PROPERTY(bool showsComponents READ showsComponents NOTIFY changed)
    Q_PROPERTY(bool isComponentPickerEnabled READ isComponentPickerEnabled NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::ChoiceValue> components MEMBER components_ NOTIFY changed)
    Q_PROPERTY(QString selectedComponent READ selectedComponent NOTIFY changed)
    Q_PROPERTY(bool isLoadingMonitors READ isLoadingMonitors NOTIFY changed)
    Q_PROPERTY(bool showsMonitors READ showsMonitors NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::ChoiceValue> monitors MEMBER monitors_ NOTIFY changed)
    Q_PROPERTY(QString selectedMonitor READ selectedMonitor NOTIFY changed)
    Q_PROPERTY(bool isLoadingComponents READ isLoadingComponents NOTIFY changed)
    Q_PROPERTY(QString selectionHint READ selectionHint NOTIFY changed)
    Q_PROPERTY(bool isSaveEnabled READ isSaveEnabled NOTIFY changed)
    Q_PROPERTY(bool isCancelEnabled READ isCancelEnabled NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString busyText READ busyText CONSTANT)
    Q_PROPERTY(QString alert READ alert NOTIFY changed)
    Q_PROPERTY(bool showsDiscardConfirmation READ showsDiscardConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue discardConfirmation READ discardConfirmation CONSTANT)

public:
    CreateIncidentBridge(
        std::shared_ptr<incidents::CreateIncidentView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool notifySubscribers() const { return *view_->notifySubscribers; }
    void setNotifySubscribers(bool wanted) { view_->notifySubscribers = wanted; }
    QString selectedGroup() const { return words(*selection().selectedComponentGroupID); }
    bool showsComponents() const { return selection().showsComponentPicker(); }
    bool isComponentPickerEnabled() const { return selection().isComponentPickerEnabled(); }
    QString selectedComponent() const { return words(*selection().selectedComponentID); }
    bool isLoadingMonitors() const { return *selection().isLoadingMonitors; }
    bool showsMonitors() const { return selection().showsMonitorPicker(); }
    QString selectedMonitor() const { return words(*selection().selectedMonitorID); }
    bool isLoadingComponents() const { return *selection().isLoadingComponents; }
    QString selectionHint() const { return words(view_->selectionHint()); }
    bool isSaveEnabled() const { return view_->isSaveEnabled(); }
    bool isCancelEnabled() const { return view_->isCancelEnabled(); }
    bool isBusy() const { return *view_->action->isInProgress; }
    QString busyText() const { return words(incidents::CreateIncidentView::busyText); }
    QString alert() const { return words(*view_->action->alert); }
    bool showsDiscardConfirmation() const { return *view_->showDiscardConfirmation; }
    ConfirmationValue discardConfirmation() const { return ConfirmationValue::of(presentation::discardConfirmation); }

    Q_INVOKABLE void editTitle(const QString& text) { view_->title = text.toStdString(); }
    Q_INVOKABLE void editMessage(const QString& text) { view_->message = text.toStdString(); }
    Q_INVOKABLE void chooseGroup(const QString& id) { view_->selection->chooseGroup(id.toStdString()); }
    Q_INVOKABLE void chooseComponent(const QString& id) { view_->selection->chooseComponent(id.toStdString()); }
    Q_INVOKABLE void chooseMonitor(const QString& id) { view_->selection->chooseMonitor(id.toStdString()); }
    Q_INVOKABLE void save() { view_->save(); }
    Q_INVOKABLE void cancel() { view_->cancel(); }
    Q_INVOKABLE void requestClose() { view_->requestClose(); }
    Q_INVOKABLE void keepEditing() { view_->keepEditing(); }
    Q_INVOKABLE void discardChanges() { view_->discardChanges(); }
    Q_INVOKABLE void dismissAlert() { view_->action->dismissAlert(); }

private:
    const presentation::ComponentSelection& selection() const { return *view_->selection; }
    void readState() override;

    std::shared_ptr<incidents::CreateIncidentView> view_;
    QList<ChoiceValue> groups_;
    QList<ChoiceValue> components_;
    QList<ChoiceValue> monitors_;
};

}  // namespace larkspan::bridge
