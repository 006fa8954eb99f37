#pragma once

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/GuardedScreenBridge.h"
#include "presentation/screens/EditableDetail.h"

namespace larkspan::bridge {

/// The common part of the bridges of editable records; texts and decisions are those of `presentation::EditableDetail`.
class EditableDetailBridge : public larkspan::bridge::GuardedScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("what the bridges of records that can be edited are")
    Q_PROPERTY(QString closeLabel READ closeLabel NOTIFY changed)
    Q_PROPERTY(bool isEditing READ isEditing NOTIFY changed)
    Q_PROPERTY(bool showsDeleteConfirmation READ showsDeleteConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue deleteConfirmation READ deleteConfirmation CONSTANT)

public:
    QString closeLabel() const { return words(detail_->closeLabel()); }
    bool isEditing() const { return *detail_->isEditing; }
    bool showsDeleteConfirmation() const { return *detail_->showDeleteConfirmation; }
    ConfirmationValue deleteConfirmation() const { return ConfirmationValue::of(detail_->deleteConfirmation); }

    Q_INVOKABLE void beginEditing() { detail_->beginEditing(); }
    Q_INVOKABLE void confirmDelete() { detail_->confirmDelete(); }
    Q_INVOKABLE void cancelDelete() { detail_->cancelDelete(); }
    Q_INVOKABLE void deleteRecord() { detail_->deleteRecord(); }

protected:
    EditableDetailBridge(
        const std::shared_ptr<presentation::EditableDetail>& detail, const ScreenUpdates& updates, QObject* parent);

private:
    std::shared_ptr<presentation::EditableDetail> detail_;
};

}  // namespace larkspan::bridge
