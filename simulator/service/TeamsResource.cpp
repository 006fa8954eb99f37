#include "account/Account.h"
#include "service/Known.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"
#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

Json wireTeam(const Team& team)
{
    return wireRecord({{"id", team.id}, {"name", team.name}});
}

Json wireMembership(const TeamMembership& membership)
{
    return wireRecord({{"team_id", membership.teamId}, {"user_id", membership.userId}, {"role", membership.role}});
}

Answer showDuty(const Call& call)
{
    const auto& duty = call.account.staff.duty;
    const auto* team = duty.teamId ? call.account.findTeam(*duty.teamId) : nullptr;
    return ok(wireRecord({
        {"is_on_call", duty.isOnCall},
        {"user_id", duty.userId},
        {"user_name", duty.userName},
        {"team_id", duty.teamId},
        {"team_name", team ? std::optional(team->name) : std::nullopt},
        {"shift_start", duty.shiftStart},
        {"shift_end", duty.shiftEnd},
        {"override_active", duty.overrideActive},
    }));
}

Answer takeShift(const Call& call)
{
    const auto& schedule = known(call.account.findOnCallSchedule(call.wildcards.front()));
    auto& duty = call.account.staff.duty;
    if (duty.isOnCall && duty.teamId == schedule.teamId) throw Refusal(409, "The shift is yours already.");
    duty.isOnCall = true;
    duty.teamId = schedule.teamId;
    duty.shiftStart = call.now;
    duty.shiftEnd = call.now + 8h;
    duty.overrideActive = true;
    return {204};
}

}  // namespace

void addTeamsRoutes(Router& router)
{
    router.add(
        "GET", "/user/api/v1/teams", [](const Call& call) { return ok(wireList(call.account.staff.teams, wireTeam)); });
    router.add("GET", "/user/api/v1/teams/memberships",
        [](const Call& call) { return ok(wireList(call.account.staff.memberships, wireMembership)); });
    router.add("GET", "/user/api/v1/on-call/my-status", showDuty);
    router.add("POST", "/user/api/on-call/schedules/*/take", takeShift);
}

}  // namespace larkspan::simulator
