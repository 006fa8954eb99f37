#include "api/TeamEndpoints.h"

#include "api/Endpoint.h"
#include "model/records/OnCallStatus.h"
#include "model/records/Team.h"

namespace larkspan::api {

namespace {

using fakes::ScriptedService;

class TeamEndpoint : public Endpoint {};

TEST_P(TeamEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

TEST_P(TeamEndpoint, IsOneWayToTheClientAndOneBack)
{
    expectOneWayThereAndOneBack();
}

INSTANTIATE_TEST_SUITE_P(EachOperation, TeamEndpoint,
    testing::Values(
        EndpointRow{"fetchOnCallStatus", [](ScriptedService& s) { return s.result(s.api.fetchOnCallStatus()).userId; },
            R"({"data": {"is_on_call": true, "user_id": "u1"}})", "GET", v1 + "/on-call/my-status", "none", "u1"},
        EndpointRow{"takeOnCallShift", [](ScriptedService& s) { return resultOf(s, s.api.takeOnCallShift("s1")); }, "",
            "POST", feature + "/on-call/schedules/s1/take", "none", "nothing"},
        EndpointRow{"fetchTeams", [](ScriptedService& s) { return resultOf(s, s.api.fetchTeams()); },
            R"([{"id": "b", "name": "B"}, {"id": "a", "name": "A"}])", "GET", v1 + "/teams", "none", "b a"},
        EndpointRow{"fetchTeamMemberships",
            [](ScriptedService& s) { return s.result(s.api.fetchTeamMemberships()).at(0).userId; },
            R"({"data": [{"team_id": "a", "user_id": "u1"}]})", "GET", v1 + "/teams/memberships", "none", "u1"}),
    [](const auto& row) { return row.param.name; });

}  // namespace

}  // namespace larkspan::api
