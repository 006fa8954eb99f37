#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <cstddef>
#include <memory>

#include "bridge/screens/EditableDetailBridge.h"
#include "bridge/values/ChoiceValue.h"
#include "bridge/values/FactValue.h"
#include "bridge/values/PillValue.h"
#include "components/ComponentDetailView.h"

namespace larkspan::bridge {

/// An opened component for QML; texts and decisions are those of `components::ComponentDetailView`.
class ComponentDetailBridge : public larkspan::bridge::EditableDetailBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::PillValue status READ status NOTIFY changed)
    Q_PROPERTY(bool showsDetails READ showsDetails NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::FactValue> details MEMBER details_ NOTIFY changed)
    Q_PROPERTY(QString description READ description NOTIFY changed)
    Q_PROPERTY(QString editedName READ editedName NOTIFY changed)
    Q_PROPERTY(QList<QString> statuses READ statuses CONSTANT)
    /// The index of the edited status in `statuses`; -1 if it is not one of them.
    Q_PROPERTY(int selectedStatus READ selectedStatus NOTIFY changed)
    Q_PROPERTY(QString unlistedStatus READ unlistedStatus NOTIFY changed)
    Q_PROPERTY(QString editedDescription READ editedDescription NOTIFY changed)
    Q_PROPERTY(bool showsGroupPicker READ showsGroupPicker NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::ChoiceValue> groups MEMBER groups_ NOTIFY changed)
    Q_PROPERTY(QString selectedGroup READ selectedGroup NOTIFY changed)
    Q_PROPERTY(QString busyText READ busyText CONSTANT)

public:
    ComponentDetailBridge(
        std::shared_ptr<components::ComponentDetailView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    QString title() const { return words(components::ComponentDetailView::title); }
    QString name() const { return words(view_->component->name); }
    PillValue status() const { return PillValue::of(view_->status()); }
    bool showsDetails() const { return view_->showsDetails(); }
    QString description() const { return words(view_->description()); }
    QString editedName() const { return wholeText(*view_->editedName); }
    QList<QString> statuses() const;
    int selectedStatus() const;
    QString unlistedStatus() const { return words(view_->unlistedStatus()); }
    QString editedDescription() const { return wholeText(*view_->editedDescription); }
    bool showsGroupPicker() const { return view_->showsGroupPicker(); }
    QString selectedGroup() const { return wholeText(view_->selectedGroup()); }
    QString busyText() const { return words(components::ComponentDetailView::busyText); }

    Q_INVOKABLE void openURL() { view_->openURL(); }
    Q_INVOKABLE void editName(const QString& text) { view_->editedName = text.toStdString(); }
    Q_INVOKABLE void chooseStatus(int place) { view_->chooseStatus(static_cast<std::size_t>(place)); }
    Q_INVOKABLE void editDescription(const QString& text) { view_->editedDescription = text.toStdString(); }
    Q_INVOKABLE void chooseGroup(const QString& id) { view_->chooseGroup(id.toStdString()); }
    Q_INVOKABLE void saveChanges() { view_->saveChanges(); }

private:
    void readState() override;

    std::shared_ptr<components::ComponentDetailView> view_;
    QList<FactValue> details_;
    QList<ChoiceValue> groups_;
};

}  // namespace larkspan::bridge
