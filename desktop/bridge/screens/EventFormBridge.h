#pragma once

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/GuardedScreenBridge.h"
#include "bridge/values/ChoiceValue.h"
#include "presentation/forms/EventForm.h"

namespace larkspan::bridge {

/// The common part of the bridges of all events' forms; texts and decisions are those of `presentation::EventForm`.
class EventFormBridge : public larkspan::bridge::GuardedScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("what the forms of all events are")
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
    Q_PROPERTY(QString busyText READ busyText CONSTANT)

public:
    QString selectedGroup() const { return wholeText(*selection().selectedComponentGroupID); }
    bool showsComponents() const { return selection().showsComponentPicker(); }
    bool isComponentPickerEnabled() const { return selection().isComponentPickerEnabled(); }
    QString selectedComponent() const { return wholeText(*selection().selectedComponentID); }
    bool isLoadingMonitors() const { return *selection().isLoadingMonitors; }
    bool showsMonitors() const { return selection().showsMonitorPicker(); }
    QString selectedMonitor() const { return wholeText(*selection().selectedMonitorID); }
    bool isLoadingComponents() const { return *selection().isLoadingComponents; }
    QString selectionHint() const { return words(form_->selectionHint()); }
    QString busyText() const { return words(presentation::EventForm::busyText); }

    Q_INVOKABLE void editTitle(const QString& text) { form_->title = text.toStdString(); }
    Q_INVOKABLE void editMessage(const QString& text) { form_->message = text.toStdString(); }
    Q_INVOKABLE void chooseGroup(const QString& id) { form_->selection->chooseGroup(id.toStdString()); }
    Q_INVOKABLE void chooseComponent(const QString& id) { form_->selection->chooseComponent(id.toStdString()); }
    Q_INVOKABLE void chooseMonitor(const QString& id) { form_->selection->chooseMonitor(id.toStdString()); }
    Q_INVOKABLE void save() { form_->save(); }

protected:
    EventFormBridge(std::shared_ptr<presentation::EventForm> form, const ScreenUpdates& updates, QObject* parent);

private:
    const presentation::ComponentSelection& selection() const { return *form_->selection; }
    void readState() override;

    std::shared_ptr<presentation::EventForm> form_;
    QList<ChoiceValue> groups_;
    QList<ChoiceValue> components_;
    QList<ChoiceValue> monitors_;
};

}  // namespace larkspan::bridge
