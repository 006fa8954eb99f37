#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Time.h"

namespace larkspan::simulator {

struct Team {
    std::string id;
    std::string name;
};

struct TeamMembership {
    std::string teamId;
    std::string userId;
    std::optional<std::string> role;
};

/// The people who are on call for a team in turn.
struct OnCallSchedule {
    std::string id;
    std::string teamId;
};

/// The on-call duty of the key's owner.
struct OnCallDuty {
    bool isOnCall = false;
    std::string userId = "user-1";
    std::optional<std::string> userName = "Robin Vale";
    std::optional<std::string> teamId;
    std::optional<support::Time> shiftStart;
    std::optional<support::Time> shiftEnd;
    /// Whether the shift was taken over from another person.
    std::optional<bool> overrideActive;
};

/// The people of an account.
struct Staff {
    std::vector<Team> teams;
    std::vector<TeamMembership> memberships;
    std::vector<OnCallSchedule> schedules;
    OnCallDuty duty;
};

/// Two teams of three people; the key's owner is on call for the first one at `now`.
Staff ordinaryStaff(support::Time now);

}  // namespace larkspan::simulator
