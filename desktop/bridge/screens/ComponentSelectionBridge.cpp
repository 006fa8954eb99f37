#include "bridge/screens/ComponentSelectionBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

ComponentSelectionBridge::ComponentSelectionBridge(
    std::shared_ptr<presentation::ComponentSelection> selection, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , selection_(std::move(selection))
{
    followChangesOf(*selection_);
    ComponentSelectionBridge::readState();
}

void ComponentSelectionBridge::readState()
{
    groups_ = valuesOf<ChoiceValue>(selection_->groupChoices());
    components_ = valuesOf<ChoiceValue>(selection_->componentChoices());
    monitors_ = valuesOf<ChoiceValue>(selection_->monitorChoices());
}

}  // namespace larkspan::bridge
