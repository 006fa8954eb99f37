#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ServedAccount.h"

namespace larkspan::simulator {
namespace {

const std::string dutyPath = "/user/api/v1/on-call/my-status";
const std::string schedulesPath = "/user/api/on-call/schedules";

class TeamEndpoints : public ServedAccount {
protected:
    TeamEndpoints()
    {
        service_.setShape(ResultShape::bare);
        service_.withAccount([this](Account& account) { account.staff = ordinaryStaff(clock_.time); });
    }
};

TEST_F(TeamEndpoints, TellTeamsAndWhoIsInThem)
{
    EXPECT_EQ(send("GET", "/user/api/v1/teams").body,
        R"([{"id":"team-1","name":"Platform"},{"id":"team-2","name":"Support"}])");
    const auto memberships = parsedJson(send("GET", "/user/api/v1/teams/memberships").body);
    EXPECT_EQ(textOf(memberships.at(0)), R"({"team_id":"team-1","user_id":"user-1","role":"lead"})");
    EXPECT_EQ(textOf(memberships.at(2)), R"({"team_id":"team-1","user_id":"user-3"})");
}

TEST_F(TeamEndpoints, TellTheDutyOfTheKeysOwner)
{
    EXPECT_EQ(send("GET", dutyPath).body,
        R"({"is_on_call":true,"user_id":"user-1","user_name":"Robin Vale","team_id":"team-1","team_name":"Platform",)"
        R"("shift_start":"2026-11-20T07:00:00Z","shift_end":"2026-11-20T15:00:00Z","override_active":false})");
}

TEST_F(TeamEndpoints, AShiftThatIsTakenOverStartsNow)
{
    const auto reply = send("POST", schedulesPath + "/schedule-2/take");

    EXPECT_EQ(reply.status, 204);
    EXPECT_EQ(reply.body, "");
    EXPECT_EQ(send("GET", dutyPath).body,
        R"({"is_on_call":true,"user_id":"user-1","user_name":"Robin Vale","team_id":"team-2","team_name":"Support",)"
        R"("shift_start":"2026-11-20T09:00:00Z","shift_end":"2026-11-20T17:00:00Z","override_active":true})");
}

class RefusedOfTeams : public TeamEndpoints, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedOfTeams, IsAnsweredWithWhatIsWrongAndChangesNothing)
{
    expectRefusal(GetParam(), dutyPath);
}

INSTANTIATE_TEST_SUITE_P(Each, RefusedOfTeams,
    testing::Values(RefusalRow{"UnknownSchedule", "POST", schedulesPath + "/x/take", "", 404, "Not found"},
        RefusalRow{"OwnShift", "POST", schedulesPath + "/schedule-1/take", "", 409, "The shift is yours already."},
        RefusalRow{"TeamsUnderTheOtherBase", "GET", "/user/api/teams", "", 404, "Not found"},
        RefusalRow{
            "TakeUnderTheOtherBase", "POST", "/user/api/v1/on-call/schedules/schedule-2/take", "", 404, "Not found"}),
    nameOf);

}  // namespace
}  // namespace larkspan::simulator
