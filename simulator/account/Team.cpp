#include "account/Team.h"

namespace larkspan::simulator {

using namespace std::chrono_literals;

Staff ordinaryStaff(support::Time now)
{
    const auto shiftStart = std::chrono::floor<std::chrono::hours>(now) - 2h;
    return {
        .teams = {{"team-1", "Platform"}, {"team-2", "Support"}},
        .memberships = {{"team-1", "user-1", "lead"}, {"team-1", "user-2", "member"}, {"team-1", "user-3", {}},
            {"team-2", "user-1", {}}, {"team-2", "user-4", "lead"}, {"team-2", "user-5", "member"}},
        .schedules = {{"schedule-1", "team-1"}, {"schedule-2", "team-2"}},
        .duty = {.isOnCall = true,
            .teamId = "team-1",
            .shiftStart = shiftStart,
            .shiftEnd = shiftStart + 8h,
            .overrideActive = false},
    };
}

}  // namespace larkspan::simulator
