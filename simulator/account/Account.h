#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "account/Incident.h"
#include "account/Maintenance.h"
#include "account/StatusPage.h"

namespace larkspan::simulator {

/// What a key may do: everything, or nothing although it is known.
enum class KeyRights { full, none };

/// An account of the service, in memory.
struct Account {
    StatusPage* findPage(std::string_view id);

    std::map<std::string, KeyRights, std::less<>> keys;
    std::vector<StatusPage> statusPages;
    /// Newest first, as the maintenances.
    std::vector<Incident> incidents = {};
    std::vector<IncidentState> incidentStates = ordinaryIncidentStates();
    std::vector<Maintenance> maintenances = {};
};

}  // namespace larkspan::simulator
