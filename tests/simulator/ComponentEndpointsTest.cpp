#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ServedAccount.h"

namespace larkspan::simulator {
namespace {

const std::string componentsPath = "/user/api/components";
const std::string groupsPath = "/user/api/component-groups";
const std::string groupsOfPage = groupsPath + "?status_page_id=page-1";
const std::string path = componentsPath + "/1";

/// An account with the groups "group-1" of "page-1" and "group-2" of "page-2", and the component "1" in the former.
class ComponentEndpoints : public ServedAccount {
protected:
    ComponentEndpoints()
    {
        service_.setShape(ResultShape::bare);
        service_.withAccount([](Account& account) {
            account.componentGroups = {{"group-1", "API", "page-1", true}, {"group-2", "Web", "page-2"}};
            account.components = {{"1", "REST API", "Ours", "up", "group-1", {}, "page-1"}};
            account.monitors.emplace_back().componentId = "1";
            account.issuedIds = 10;
        });
    }

    std::size_t countOf(const std::string& listPath)
    {
        return parsedJson(send("GET", listPath).body).get_ref<Json::array_t&>().size();
    }
};

TEST_F(ComponentEndpoints, ListsThoseOfAPageOrOfTheAccount)
{
    EXPECT_EQ(send("GET", componentsPath + "?status_page_id=page-1").body,
        R"([{"id":1,"name":"REST API","description":"Ours","monitor_state":"up","component_group_id":"group-1",)"
        R"("status_page_id":"page-1"}])");
    EXPECT_EQ(countOf(componentsPath + "?status_page_id=page-2"), 0u);
    EXPECT_EQ(countOf(componentsPath), 1u);
}

TEST_F(ComponentEndpoints, AListMayComeInItsOwnEnvelope)
{
    const auto bare = parsedJson(send("GET", componentsPath).body);
    const auto bareGroups = parsedJson(send("GET", groupsOfPage).body);
    service_.setShape(ResultShape::inOwnEnvelope);

    EXPECT_EQ(parsedJson(send("GET", componentsPath).body), Json::object({{"components", bare}}));
    EXPECT_EQ(parsedJson(send("GET", groupsOfPage).body), Json::object({{"component_groups", bareGroups}}));
    EXPECT_TRUE(parsedJson(send("GET", samples::pagesPath).body).contains("data"));
}

TEST_F(ComponentEndpoints, CreatePutsTheNewOneLastIntoItsGroupsPage)
{
    const auto reply = send("POST", componentsPath, "{'name':'CDN','description':'d','group_id':'group-2'}");

    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(reply.body,
        R"({"id":11,"name":"CDN","description":"d","monitor_state":"up","component_group_id":"group-2",)"
        R"("status_page_id":"page-2"})");
    EXPECT_EQ(parsedJson(send("GET", componentsPath).body).back(), parsedJson(reply.body));
}

TEST_F(ComponentEndpoints, CreateWithoutAGroupBelongsToNoPage)
{
    EXPECT_EQ(send("POST", componentsPath, "{'name':'CDN'}").body, R"({"id":11,"name":"CDN","monitor_state":"up"})");
}

TEST_F(ComponentEndpoints, UpdatePutsTheWholeComponent)
{
    EXPECT_EQ(send("PUT", path, "{'name':'A','description':'d','status':'degraded','group_id':'group-1'}").body,
        R"({"id":1,"name":"A","description":"d","monitor_state":"degraded","component_group_id":"group-1",)"
        R"("status_page_id":"page-1"})");
}

TEST_F(ComponentEndpoints, UpdateWithoutDescriptionAndGroupTakesThemAwayAndKeepsTheRest)
{
    EXPECT_EQ(
        send("PUT", path, "{}").body, R"({"id":1,"name":"REST API","monitor_state":"up","status_page_id":"page-1"})");
}

TEST_F(ComponentEndpoints, AWordThatTheComponentHasAlreadyMayBeSentBack)
{
    service_.withAccount([](Account& account) { account.components[0].state = "verifying"; });

    EXPECT_EQ(field(send("PUT", path, "{'status':'verifying'}"), "monitor_state"), "verifying");
}

TEST_F(ComponentEndpoints, DeleteAnswersNothingAndFreesItsMonitors)
{
    const auto reply = send("DELETE", path);

    EXPECT_EQ(reply.status, 204);
    EXPECT_EQ(reply.body, "");
    EXPECT_EQ(countOf(componentsPath), 0u);
    service_.withAccount([](Account& account) { EXPECT_EQ(account.monitors[0].componentId, std::nullopt); });
}

TEST_F(ComponentEndpoints, ListsGroupsOfAPageSomeWithTheirComponents)
{
    EXPECT_EQ(send("GET", groupsOfPage).body,
        R"([{"id":"group-1","name":"API","status_page_id":"page-1","components":[)"
        R"({"id":1,"name":"REST API","description":"Ours","monitor_state":"up","component_group_id":"group-1",)"
        R"("status_page_id":"page-1"}]}])");
    EXPECT_EQ(send("GET", groupsPath + "?status_page_id=page-2").body,
        R"([{"id":"group-2","name":"Web","status_page_id":"page-2"}])");
}

TEST_F(ComponentEndpoints, CreatesAGroup)
{
    const auto reply = send("POST", groupsPath, "{'name':'Data','status_page_id':'page-1'}");

    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(reply.body, R"({"id":"group-11","name":"Data","status_page_id":"page-1"})");
    EXPECT_EQ(countOf(groupsOfPage), 2u);
}

TEST_F(ComponentEndpoints, RenamesAGroupOrLeavesIt)
{
    EXPECT_EQ(field(send("PUT", groupsPath + "/group-2", "{'name':'API'}"), "name"), "API") << "of another page";
    EXPECT_EQ(field(send("PUT", groupsPath + "/group-2", "{}"), "name"), "API");
}

TEST_F(ComponentEndpoints, ADeletedGroupLeavesItsComponentsBehind)
{
    EXPECT_EQ(send("DELETE", groupsPath + "/group-1").status, 204);

    EXPECT_EQ(countOf(groupsOfPage), 0u);
    service_.withAccount([](Account& account) { EXPECT_EQ(account.components[0].groupId, "group-1"); });
    EXPECT_EQ(send("PUT", path, "{'name':'A','group_id':'group-1'}").status, 200) << "it may stay there";
}

class RefusedOfComponents : public ComponentEndpoints, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedOfComponents, IsAnsweredWithWhatIsWrongAndChangesNothing)
{
    const auto groups = send("GET", groupsOfPage).body;
    expectRefusal(GetParam(), componentsPath);
    EXPECT_EQ(send("GET", groupsOfPage).body, groups);
}

INSTANTIATE_TEST_SUITE_P(UnknownIds, RefusedOfComponents,
    testing::Values(RefusalRow{"Update", "PUT", componentsPath + "/x", "{}", 404, "Not found"},
        RefusalRow{"Delete", "DELETE", componentsPath + "/x", "", 404, "Not found"},
        RefusalRow{"UpdateGroup", "PUT", groupsPath + "/x", "{}", 404, "Not found"},
        RefusalRow{"DeleteGroup", "DELETE", groupsPath + "/x", "", 404, "Not found"},
        RefusalRow{"ListOfPage", "GET", componentsPath + "?status_page_id=x", "", 400, "There is no such status page."},
        RefusalRow{
            "ListOfNoPage", "GET", componentsPath + "?status_page_id=", "", 400, "There is no such status page."},
        RefusalRow{"GroupsOfPage", "GET", groupsPath + "?status_page_id=x", "", 400, "There is no such status page."},
        RefusalRow{"GroupsOfNoPage", "GET", groupsPath, "", 400, "There is no such status page."}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(TheOtherBaseOrMethod, RefusedOfComponents,
    testing::Values(RefusalRow{"List", "GET", "/user/api/v1/components", "", 404, "Not found"},
        RefusalRow{"Groups", "GET", "/user/api/v1/component-groups", "", 404, "Not found"},
        RefusalRow{"Patch", "PATCH", path, "{}", 405, "Method not allowed"},
        RefusalRow{"PatchGroup", "PATCH", groupsPath + "/group-1", "{}", 405, "Method not allowed"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(BadBodies, RefusedOfComponents,
    testing::Values(RefusalRow{"NoName", "POST", componentsPath, "{}", 422, R"("name" is missing.)"},
        RefusalRow{"BlankName", "POST", componentsPath, "{'name':' '}", 422, R"("name" is empty.)"},
        RefusalRow{"UnknownGroup", "POST", componentsPath, "{'name':'n','group_id':'x'}", 422,
            "There is no such component group."},
        RefusalRow{"BlankNewName", "PUT", path, "{'name':''}", 422, R"("name" is empty.)"},
        RefusalRow{"UnknownStatus", "PUT", path, "{'status':'fine'}", 422, "There is no such component status."},
        RefusalRow{"GroupOfAnotherPage", "PUT", path, "{'group_id':'group-2'}", 422,
            "The group belongs to another status page."},
        RefusalRow{"NoGroupName", "POST", groupsPath, "{'status_page_id':'page-1'}", 422, R"("name" is missing.)"},
        RefusalRow{"NoPage", "POST", groupsPath, "{'name':'n'}", 422, R"("status_page_id" is missing.)"},
        RefusalRow{"UnknownPage", "POST", groupsPath, "{'name':'n','status_page_id':'x'}", 422,
            "There is no such status page."},
        RefusalRow{"TakenGroupName", "POST", groupsPath, "{'name':'API','status_page_id':'page-1'}", 409,
            "The page has a group of that name."},
        RefusalRow{"BlankGroupName", "PUT", groupsPath + "/group-1", "{'name':' '}", 422, R"("name" is empty.)"}),
    nameOf);

}  // namespace
}  // namespace larkspan::simulator
