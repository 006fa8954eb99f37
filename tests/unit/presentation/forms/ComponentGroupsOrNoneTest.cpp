#include "presentation/forms/ComponentGroupsOrNone.h"

#include <gtest/gtest.h>

#include "api/KestruneAPI.h"
#include "fakes/PageComponents.h"

namespace larkspan::presentation {

namespace {

class GroupsOfAPage : public testing::Test, public fakes::PageComponents {};

TEST_F(GroupsOfAPage, AreThoseOfTheServiceInItsOrder)
{
    const auto groups = result(componentGroupsOrNone(api, "p"));
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups.at(0).id, "back");
    EXPECT_EQ(groups.at(1).id, "empty");
}

TEST_F(GroupsOfAPage, AreNoneWhereTheyCannotBeFetched)
{
    transport.script(groupsURL, 500, "");
    EXPECT_TRUE(result(componentGroupsOrNone(api, "p")).empty());
    transport.script(groupsURL, 200, "7");
    EXPECT_TRUE(result(componentGroupsOrNone(api, "p")).empty());
}

}  // namespace

}  // namespace larkspan::presentation
