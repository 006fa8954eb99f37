#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ServedAccount.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

const std::string path = samples::pagesPath + "/page-1";

class StatusPageEndpoints : public ServedAccount {
protected:
    StatusPageEndpoints() { service_.setShape(ResultShape::bare); }
};

TEST_F(StatusPageEndpoints, AnUpdateLeavesWhatItDoesNotName)
{
    const auto named = send("PATCH", path, "{'title':'New'}");
    EXPECT_EQ(named.status, 200);
    EXPECT_EQ(field(named, "name"), "New");
    EXPECT_EQ(field(named, "updated_at"), "2026-11-20T09:00:00Z");
    EXPECT_EQ(field(named, "description"), "Live status of Northwind Payments API.");

    const auto described = send("PATCH", path, "{'description':''}");
    EXPECT_EQ(field(described, "name"), "New");
    EXPECT_EQ(field(described, "description"), "");
    EXPECT_EQ(parsedJson(send("GET", samples::pagesPath).body).at(0), parsedJson(described.body));
}

TEST_F(StatusPageEndpoints, TellHowOftenAPageIsLookedAtAndByHowMany)
{
    service_.withAccount([](Account& account) {
        account.findPage("page-1")->viewsOfMonth = 12;
        account.findPage("page-1")->subscribers = 3;
    });

    EXPECT_EQ(send("GET", "/user/api/analytics/status-pages/page-1/views").body, R"({"period":"30d","view_count":12})");
    EXPECT_EQ(send("GET", path + "/subscribers/count").body, R"({"count":3})");
}

class RefusedOfPages : public StatusPageEndpoints, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedOfPages, IsAnsweredWithWhatIsWrongAndChangesNothing)
{
    expectRefusal(GetParam(), samples::pagesPath);
}

INSTANTIATE_TEST_SUITE_P(Each, RefusedOfPages,
    testing::Values(RefusalRow{"UnknownPage", "PATCH", samples::pagesPath + "/x", "{}", 404, "Not found"},
        RefusalRow{"ViewsOfNone", "GET", "/user/api/analytics/status-pages/x/views", "", 404, "Not found"},
        RefusalRow{"SubscribersOfNone", "GET", samples::pagesPath + "/x/subscribers/count", "", 404, "Not found"},
        RefusalRow{
            "ViewsUnderTheOtherBase", "GET", "/user/api/v1/analytics/status-pages/page-1/views", "", 404, "Not found"},
        RefusalRow{"SubscribersUnderTheOtherBase", "GET", "/user/api/status-pages/page-1/subscribers/count", "", 404,
            "Not found"},
        RefusalRow{"NothingToChange", "PATCH", path, "{}", 422, "There is nothing to change."},
        RefusalRow{"BlankTitle", "PATCH", path, "{'title':' '}", 422, R"("title" is empty.)"}),
    nameOf);

}  // namespace
}  // namespace larkspan::simulator
