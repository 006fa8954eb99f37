#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/ChildScreen.h"
#include "bridge/ComponentDetailBridge.h"
#include "bridge/RowListModel.h"
#include "bridge/ScreenBridge.h"
#include "bridge/values/ComponentRowValue.h"
#include "bridge/values/PlaceholderValue.h"
#include "components/StatusPageComponentsView.h"

namespace larkspan::bridge {

/// A page's components for QML; worded and decided by `components::StatusPageComponentsView`.
class ComponentListBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool showsList READ showsList NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::PlaceholderValue placeholder MEMBER placeholder_ NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ListModel* rows READ rows CONSTANT)
    Q_PROPERTY(bool showsAlert READ showsAlert NOTIFY changed)
    Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY changed)
    /// The component that is open; null while there is none.
    Q_PROPERTY(larkspan::bridge::ComponentDetailBridge* detail READ detail NOTIFY changed)

public:
    ComponentListBridge(std::shared_ptr<components::StatusPageComponentsView> view, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    bool showsList() const { return view_->content() == presentation::Content::records; }
    ListModel* rows() { return &rows_; }
    bool showsAlert() const { return *view_->viewModel->showErrorAlert; }
    QString alertMessage() const { return words(view_->alertMessage()); }
    ComponentDetailBridge* detail() const { return detail_.get(); }

    Q_INVOKABLE void refresh() { view_->refresh(); }
    Q_INVOKABLE void dismissAlert() { view_->dismissAlert(); }
    Q_INVOKABLE void open(const QString& id) { view_->openComponent(id.toStdString()); }
    Q_INVOKABLE void closeDetail() { view_->closeComponent(); }

private:
    void readState() override;

    std::shared_ptr<components::StatusPageComponentsView> view_;
    const ScreenUpdates& updates_;
    PlaceholderValue placeholder_;
    RowListModel<ComponentRowValue> rows_;
    ChildScreen<ComponentDetailBridge, components::ComponentDetailView> detail_;
};

}  // namespace larkspan::bridge
