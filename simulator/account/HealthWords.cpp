#include "account/HealthWords.h"

#include <algorithm>

#include "account/Account.h"

namespace larkspan::simulator {

HealthWords healthWords(PageHealth health)
{
    switch (health) {
    case PageHealth::operational: break;
    case PageHealth::degraded: return {"degraded", "degraded"};
    case PageHealth::majorOutage: return {"down", "down"};
    case PageHealth::maintenance: return {"undermaintenance", "up"};
    }
    return {"up", "up"};
}

void showHealth(Account& account, std::string_view pageId, PageHealth health)
{
    const auto isOfPage = [pageId](const Component& component) { return component.statusPageId == pageId; };
    const auto found = std::ranges::find_if(account.components, isOfPage);
    if (found == account.components.end()) return;
    const auto words = healthWords(health);
    found->state = words.component;
    for (auto& monitor : account.monitors) {
        if (monitor.componentId == found->id) monitor.state = words.monitor;
    }
}

}  // namespace larkspan::simulator
