#include "account/PrefixedIds.h"

#include <optional>

namespace larkspan::simulator {

namespace {

class Prefixing {
public:
    explicit Prefixing(const std::string& prefix)
        : prefix_(prefix)
    {
    }

    void operator()(std::string& id) const { id.insert(0, prefix_); }

    void operator()(std::optional<std::string>& id) const
    {
        if (id) (*this)(*id);
    }

    void eachOf(std::optional<std::string>& joinedIds) const
    {
        (*this)(joinedIds);
        if (!joinedIds) return;
        for (auto comma = joinedIds->find(','); comma != std::string::npos; comma = joinedIds->find(',', comma + 1)) {
            joinedIds->insert(comma + 1, prefix_);
        }
    }

private:
    const std::string& prefix_;
};

}  // namespace

void prefixIds(Account& account, const std::string& prefix)
{
    const Prefixing add(prefix);
    for (auto& page : account.statusPages) add(page.id);
    for (auto& incident : account.incidents) {
        add(incident.id);
        add(incident.statusPageId);
        add(incident.componentId);
    }
    for (auto& maintenance : account.maintenances) {
        add(maintenance.id);
        add(maintenance.statusPageId);
        add.eachOf(maintenance.affectedComponents);
        add.eachOf(maintenance.affectedMonitorIds);
    }
    for (auto& group : account.componentGroups) {
        add(group.id);
        add(group.statusPageId);
    }
    for (auto& component : account.components) {
        add(component.id);
        add(component.groupId);
        add(component.statusPageId);
    }
    for (auto& monitor : account.monitors) {
        add(monitor.id);
        add(monitor.statusPageId);
        add(monitor.componentId);
    }
}

}  // namespace larkspan::simulator
