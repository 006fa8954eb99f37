#include "model/records/Component.h"

#include "model/json/Decoding.h"
#include "support/Trimming.h"

namespace larkspan::model {

void Component::readGroup(Component& component, const KeyedValue& componentGroupId)
{
    const auto text = componentGroupId.optional<std::string_view>();
    const auto id = support::trimmed(text.value_or(""));
    if (!id.empty()) component.groupId = id;
}

}  // namespace larkspan::model
