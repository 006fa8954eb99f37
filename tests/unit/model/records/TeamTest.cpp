#include "model/records/Team.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"
#include "model/records/OnCallStatus.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

using Teams = std::vector<Team>;
using Memberships = std::vector<TeamMembership>;

TEST(Team, HasAnIdAndAName)
{
    EXPECT_EQ(decoded<Teams>(R"({"data":[{"id":"t1","name":"Platform"}]})"), (Teams{{.id = "t1", .name = "Platform"}}));
    EXPECT_EQ(failureOf<Teams>(R"({"data":[{"name":"Platform"}]})"), keyNotFound("data[0].id"));
    EXPECT_EQ(failureOf<Teams>(R"({"data":[{"id":1,"name":"Platform"}]})"),
        typeMismatch("data[0].id", "a string", "a number"));
    EXPECT_EQ(failureOf<Teams>(R"({"data":[{"id":"t1"}]})"), keyNotFound("data[0].name"));
}

TEST(TeamMembership, NeedsATeamAndAUserAndNoRole)
{
    EXPECT_EQ(decoded<Memberships>(R"([{"team_id":"t","user_id":"u","role":"lead"},{"team_id":"t","user_id":"v"}])"),
        (Memberships{{.teamId = "t", .userId = "u", .role = "lead"}, {.teamId = "t", .userId = "v"}}));
    EXPECT_EQ(failureOf<Memberships>(R"({"data":[{"user_id":"u"}]})"), keyNotFound("data[0].team_id"));
    EXPECT_EQ(failureOf<Memberships>(R"({"data":[{"team_id":"t"}]})"), keyNotFound("data[0].user_id"));
    EXPECT_EQ(failureOf<Memberships>(R"({"data":[{"team_id":"t","user_id":"u","role":1}]})"),
        typeMismatch("data[0].role", "a string", "a number"));
}

TEST(OnCallStatus, ReadsEveryField)
{
    const support::Time nine = std::chrono::sys_days{2026y / 3 / 1} + 9h;
    EXPECT_EQ(decoded<OnCallStatus>(R"({"data":{"is_on_call":true,"user_id":"u1","user_name":"Ada","team_id":"t1",
        "team_name":"Platform","shift_start":"2026-03-01T09:00:00Z","shift_end":"2026-03-01T17:00:00Z",
        "override_active":false}})"),
        (OnCallStatus{.isOnCall = true,
            .userId = "u1",
            .userName = "Ada",
            .teamId = "t1",
            .teamName = "Platform",
            .shiftStart = nine,
            .shiftEnd = nine + 8h,
            .overrideActive = false}));
}

TEST(OnCallStatus, NeedsNoMoreThanWhetherAndWho)
{
    EXPECT_EQ(decoded<OnCallStatus>(R"({"is_on_call":false,"user_id":"u1","override_active":null})"),
        (OnCallStatus{.isOnCall = false, .userId = "u1"}));
    EXPECT_EQ(failureOf<OnCallStatus>(R"({"data":{"user_id":"u1"}})"), keyNotFound("data.is_on_call"));
    EXPECT_EQ(failureOf<OnCallStatus>(R"({"data":{"is_on_call":true}})"), keyNotFound("data.user_id"));
}

TEST(OnCallStatus, TakesNeitherATextNorANumberNorNullForABoolean)
{
    EXPECT_EQ(failureOf<OnCallStatus>(R"({"data":{"is_on_call":"true","user_id":"u1"}})"),
        typeMismatch("data.is_on_call", "a boolean", "a string"));
    EXPECT_EQ(failureOf<OnCallStatus>(R"({"data":{"is_on_call":1,"user_id":"u1"}})"),
        typeMismatch("data.is_on_call", "a boolean", "a number"));
    EXPECT_EQ(failureOf<OnCallStatus>(R"({"data":{"is_on_call":null,"user_id":"u1"}})"),
        valueNotFound("data.is_on_call", "a boolean"));
}

TEST(OnCallStatus, FailsWithADateThatDoesNotRead)
{
    EXPECT_EQ(failureOf<OnCallStatus>(R"({"data":{"is_on_call":true,"user_id":"u1","shift_end":"soon"}})"),
        dataCorrupted("data.shift_end", "Cannot decode date: soon"));
}

}  // namespace

}  // namespace larkspan::model
