#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/Component.h"
#include "account/Incident.h"
#include "account/Maintenance.h"
#include "account/Monitor.h"
#include "account/StatusPage.h"
#include "account/Team.h"

namespace larkspan::simulator {

/// The rights of a key: everything, or nothing although the key is known.
enum class KeyRights { full, none };

/// An account of the service in memory.
struct Account {
    StatusPage* findPage(std::string_view id);
    Incident* findIncident(std::string_view id);
    Maintenance* findMaintenance(std::string_view id);
    ComponentGroup* findComponentGroup(std::string_view id);
    Component* findComponent(std::string_view id);
    Monitor* findMonitor(std::string_view id);
    Team* findTeam(std::string_view id);
    OnCallSchedule* findOnCallSchedule(std::string_view id);

    /// Returns a new, unique id.
    std::string issueId(const std::string& prefix);

    /// Sets the page's state from its open incidents or, if it has none, from its maintenances in progress.
    void followEvents(const std::optional<std::string>& pageId, support::Time now);

    std::map<std::string, KeyRights, std::less<>> keys;
    std::vector<StatusPage> statusPages;
    /// Newest first, like the maintenances.
    std::vector<Incident> incidents = {};
    std::vector<IncidentState> incidentStates = ordinaryIncidentStates();
    std::vector<Maintenance> maintenances = {};
    std::vector<ComponentGroup> componentGroups = {};
    std::vector<Component> components = {};
    std::vector<Monitor> monitors = {};
    Staff staff = {};
    std::size_t issuedIds = 0;

private:
    PageHealth healthOf(std::string_view pageId) const;
};

}  // namespace larkspan::simulator
