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

/// What a key may do: everything, or nothing although it is known.
enum class KeyRights { full, none };

/// An account of the service, in memory.
struct Account {
    StatusPage* findPage(std::string_view id);
    Incident* findIncident(std::string_view id);
    Maintenance* findMaintenance(std::string_view id);
    ComponentGroup* findComponentGroup(std::string_view id);
    Component* findComponent(std::string_view id);
    Monitor* findMonitor(std::string_view id);
    Team* findTeam(std::string_view id);
    OnCallSchedule* findOnCallSchedule(std::string_view id);

    /// An id that nothing else has.
    std::string issueId(const std::string& prefix);

    /// Puts the page to the state that its open incidents, or else its maintenances in progress, make it have.
    void followEvents(const std::optional<std::string>& pageId, support::Time now);

    std::map<std::string, KeyRights, std::less<>> keys;
    std::vector<StatusPage> statusPages;
    /// Newest first, as the maintenances.
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
