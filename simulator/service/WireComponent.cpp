#include "service/WireComponent.h"

#include "service/WireRecord.h"

namespace larkspan::simulator {

Json wireComponent(const Component& component)
{
    return wireRecord({
        {"id", wireId(component.id)},
        {"name", component.name},
        {"description", component.description},
        {"monitor_state", component.state},
        {"component_group_id", component.groupId},
        {"url", component.url},
        {"status_page_id", component.statusPageId},
    });
}

}  // namespace larkspan::simulator
