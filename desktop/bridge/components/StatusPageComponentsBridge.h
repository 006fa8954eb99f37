#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ChildScreen.h"
#include "bridge/screens/ListBridge.h"
#include "components/StatusPageComponentsView.h"

namespace larkspan::bridge {

class ComponentDetailBridge;
struct ComponentRowValue;

/// A page's components for QML; texts and decisions are those of `components::StatusPageComponentsView`. The base is
/// named in full, since QML's tools look for the name as it is written here.
class StatusPageComponentsBridge : public larkspan::bridge::ListBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_MOC_INCLUDE("bridge/components/ComponentDetailBridge.h")
    /// The component that is open; null while there is none.
    Q_PROPERTY(larkspan::bridge::ComponentDetailBridge* detail READ detail NOTIFY changed)

public:
    StatusPageComponentsBridge(std::shared_ptr<components::StatusPageComponentsView> view, const ScreenUpdates& updates,
        QObject* parent = nullptr);

    ListModel* rows() override;
    ComponentDetailBridge* detail() const { return detail_.get(); }

    Q_INVOKABLE void open(const QString& id) { view_->openComponent(id.toStdString()); }

private:
    void readState() override;

    std::shared_ptr<components::StatusPageComponentsView> view_;
    RowListModel<ComponentRowValue>* const rows_;
    ChildScreen<ComponentDetailBridge, components::ComponentDetailView> detail_;
};

}  // namespace larkspan::bridge
