#include "api/TeamEndpoints.h"

#include "api/RequestSending.h"
#include "model/records/OnCallStatus.h"
#include "model/records/Team.h"

namespace larkspan::api {

using model::OnCallStatus;
using model::Team;
using model::TeamMembership;
using support::Task;
using Base = RequestEngine::Base;

TeamEndpoints::TeamEndpoints(RequestEngine& engine)
    : engine_(engine)
{
}

Task<OnCallStatus> TeamEndpoints::fetchOnCallStatus()
{
    return engine_.sendRequest<OnCallStatus>({.path = "/on-call/my-status"});
}

Task<void> TeamEndpoints::takeOnCallShift(std::string scheduleId)
{
    return engine_.sendForNothing({Base::feature, "POST", "/on-call/schedules/" + scheduleId + "/take"});
}

Task<std::vector<Team>> TeamEndpoints::fetchTeams()
{
    return engine_.sendRequest<std::vector<Team>>({.path = "/teams"});
}

Task<std::vector<TeamMembership>> TeamEndpoints::fetchTeamMemberships()
{
    return engine_.sendRequest<std::vector<TeamMembership>>({.path = "/teams/memberships"});
}

}  // namespace larkspan::api
