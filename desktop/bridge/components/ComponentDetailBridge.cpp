#include "bridge/components/ComponentDetailBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

using components::ComponentDetailView;

ComponentDetailBridge::ComponentDetailBridge(
    std::shared_ptr<ComponentDetailView> view, const ScreenUpdates& updates, QObject* parent)
    : EditableDetailBridge(view, updates, parent)
    , view_(std::move(view))
{
    ComponentDetailBridge::readState();
}

QList<QString> ComponentDetailBridge::statuses() const
{
    QList<QString> labels;
    for (const auto& choice : ComponentDetailView::statusChoices) labels << words(choice.label);
    return labels;
}

int ComponentDetailBridge::selectedStatus() const
{
    const auto place = view_->selectedStatus();
    return place ? static_cast<int>(*place) : -1;
}

void ComponentDetailBridge::readState()
{
    details_ = valuesOf<FactValue>(view_->details());
    groups_ = valuesOf<ChoiceValue>(view_->groupChoices());
}

}  // namespace larkspan::bridge
