#pragma once

#include <string>
#include <vector>

#include "support/Task.h"

namespace larkspan::model {

struct OnCallStatus;
struct Team;
struct TeamMembership;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// The operations on the account's teams and their on-call duty.
class TeamEndpoints {
public:
    explicit TeamEndpoints(RequestEngine& engine);

    /// The on-call duty of the key's owner.
    support::Task<model::OnCallStatus> fetchOnCallStatus();
    support::Task<void> takeOnCallShift(std::string scheduleId);
    support::Task<std::vector<model::Team>> fetchTeams();
    support::Task<std::vector<model::TeamMembership>> fetchTeamMemberships();

private:
    RequestEngine& engine_;
};

}  // namespace larkspan::api
