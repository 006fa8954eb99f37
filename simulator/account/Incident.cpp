#include "account/Incident.h"

namespace larkspan::simulator {

std::vector<IncidentState> ordinaryIncidentStates()
{
    return {{1, "Investigating", 1}, {2, "Identified", 2}, {3, "Monitoring", 3}, {4, "Resolved", 4}};
}

}  // namespace larkspan::simulator
