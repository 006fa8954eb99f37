#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/ChoiceValue.h"
#include "bridge/values/Words.h"
#include "presentation/forms/ComponentSelection.h"

namespace larkspan::bridge {

/// The choice of what an event affects for QML; worded and decided by `presentation::ComponentSelection`. It is apart
/// from the form, since a choice is rare and a typed character is not.
class ComponentSelectionBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
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
    Q_PROPERTY(QString hint READ hint NOTIFY changed)

public:
    ComponentSelectionBridge(std::shared_ptr<presentation::ComponentSelection> selection, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    QString selectedGroup() const { return wholeText(*selection_->selectedComponentGroupID); }
    bool showsComponents() const { return selection_->showsComponentPicker(); }
    bool isComponentPickerEnabled() const { return selection_->isComponentPickerEnabled(); }
    QString selectedComponent() const { return wholeText(*selection_->selectedComponentID); }
    bool isLoadingMonitors() const { return *selection_->isLoadingMonitors; }
    bool showsMonitors() const { return selection_->showsMonitorPicker(); }
    QString selectedMonitor() const { return wholeText(*selection_->selectedMonitorID); }
    bool isLoadingComponents() const { return *selection_->isLoadingComponents; }
    QString hint() const { return words(selection_->hint()); }

    Q_INVOKABLE void chooseGroup(const QString& id) { selection_->chooseGroup(id.toStdString()); }
    Q_INVOKABLE void chooseComponent(const QString& id) { selection_->chooseComponent(id.toStdString()); }
    Q_INVOKABLE void chooseMonitor(const QString& id) { selection_->chooseMonitor(id.toStdString()); }

private:
    void readState() override;

    std::shared_ptr<presentation::ComponentSelection> selection_;
    QList<ChoiceValue> groups_;
    QList<ChoiceValue> components_;
    QList<ChoiceValue> monitors_;
};

}  // namespace larkspan::bridge
