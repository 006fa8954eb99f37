#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ServedAccount.h"
#include "account/MaintenanceCalendar.h"
#include "json/WireDate.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

const std::string featurePath = "/user/api/maintenances";
const std::string maintenancesPath = "/user/api/v1/maintenances";
const std::string path = maintenancesPath + "/1";

/// An account at nine, with one maintenance, "1", of the page "page-1" from ten to eleven.
class MaintenanceEndpoints : public ServedAccount {
protected:
    MaintenanceEndpoints()
    {
        service_.setShape(ResultShape::bare);
        service_.withAccount([this](Account& account) {
            Maintenance draft;
            draft.title = "Upgrade";
            draft.statusPageId = "page-1";
            draft.startAt = clock_.time + 1h;
            draft.endAt = clock_.time + 2h;
            schedule(account, draft, clock_.time);
        });
    }

    std::string status() { return field(send("GET", path), "status"); }
};

TEST_F(MaintenanceEndpoints, FetchOne)
{
    const auto reply = send("GET", path);

    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body,
        R"({"id":1,"title":"Upgrade","status":"scheduled","start_at":"2026-11-20T10:00:00Z",)"
        R"("end_at":"2026-11-20T11:00:00Z","created_at":"2026-11-20T09:00:00Z",)"
        R"("updated_at":"2026-11-20T09:00:00Z","status_page_id":"page-1"})");
}

TEST_F(MaintenanceEndpoints, StatusAndPageFollowTheClock)
{
    EXPECT_EQ(status(), "scheduled");
    EXPECT_EQ(pageStatus(), "operational");

    clock_.time += 1h;
    EXPECT_EQ(status(), "in_progress");
    EXPECT_EQ(field(send("GET", path), "started_at"), "2026-11-20T10:00:00Z");
    EXPECT_EQ(pageStatus(), "maintenance");

    clock_.time += 1h;
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(pageStatus(), "operational");
}

TEST_F(MaintenanceEndpoints, AWordOfItsOwnOverridesTheClock)
{
    service_.withAccount([](Account& account) { account.findMaintenance("1")->status = "verifying"; });

    EXPECT_EQ(status(), "verifying");
}

TEST_F(MaintenanceEndpoints, CreatePutsTheNewOneFirst)
{
    const auto reply = send("POST", maintenancesPath,
        "{'title':'Rotation','message':'m','status_page_id':'page-2','start_at':'2026-11-20T08:00:00Z',"
        "'end_at':'2026-11-20T12:00:00Z','affected_components':'a,b','affected_monitor_ids':'1'}");

    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(field(reply, "status"), "in_progress");
    EXPECT_EQ(field(reply, "affected_components"), "a,b");
    EXPECT_EQ(field(reply, "affected_monitor_ids"), "1");
    EXPECT_EQ(parsedJson(send("GET", maintenancesPath).body).at(0), parsedJson(reply.body));
    service_.withAccount([](Account& account) { EXPECT_EQ(account.findPage("page-2")->status, "maintenance"); });
}

TEST_F(MaintenanceEndpoints, AStartNowStarts)
{
    clock_.time += 1500ms;

    const auto reply = send("PATCH", path, "{'start_at':'2026-11-20T09:00:01Z'}");

    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(field(reply, "status"), "in_progress");
    EXPECT_EQ(field(reply, "end_at"), "2026-11-20T11:00:00Z");
    EXPECT_EQ(field(reply, "updated_at"), "2026-11-20T09:00:01.500Z");
    EXPECT_EQ(pageStatus(), "maintenance");
}

TEST_F(MaintenanceEndpoints, AnEndNowCompletes)
{
    clock_.time += 90min;
    EXPECT_EQ(status(), "in_progress");

    EXPECT_EQ(field(send("PATCH", path, "{'end_at':'2026-11-20T10:30:00Z'}"), "status"), "completed");
    EXPECT_EQ(pageStatus(), "operational");
}

TEST_F(MaintenanceEndpoints, AnUpdateLeavesWhatItDoesNotName)
{
    const auto reply = send("PATCH", path, "{'title':'New','message':'m','affected_components':'a'}");

    EXPECT_EQ(field(reply, "title"), "New");
    EXPECT_EQ(field(reply, "message"), "m");
    EXPECT_EQ(field(reply, "affected_components"), "a");
    EXPECT_EQ(field(reply, "start_at"), "2026-11-20T10:00:00Z");
    EXPECT_EQ(field(reply, "status"), "scheduled");
}

TEST_F(MaintenanceEndpoints, DeleteAnswersNothingAndEndsIt)
{
    clock_.time += 1h;
    status();

    const auto reply = send("DELETE", path);

    EXPECT_EQ(reply.status, 204);
    EXPECT_EQ(reply.body, "");
    EXPECT_EQ(send("GET", path).status, 404);
    EXPECT_EQ(pageStatus(), "operational");
}

TEST_F(MaintenanceEndpoints, AnOpenIncidentOutweighsAMaintenance)
{
    clock_.time += 1h;
    send("POST", "/user/api/v1/incidents", "{'title':'t','status_page_id':'page-1','notify_subscribers':false}");

    EXPECT_EQ(pageStatus(), "degraded");
}

class RefusedOfMaintenances : public MaintenanceEndpoints, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedOfMaintenances, IsAnsweredWithWhatIsWrongAndChangesNothing)
{
    expectRefusal(GetParam(), maintenancesPath);
}

INSTANTIATE_TEST_SUITE_P(UnknownIds, RefusedOfMaintenances,
    testing::Values(RefusalRow{"Fetch", "GET", maintenancesPath + "/9", "", 404, "Not found"},
        RefusalRow{"Update", "PATCH", maintenancesPath + "/9", "{}", 404, "Not found"},
        RefusalRow{"Delete", "DELETE", maintenancesPath + "/9", "", 404, "Not found"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(TheOtherBase, RefusedOfMaintenances,
    testing::Values(RefusalRow{"Create", "POST", featurePath, "{}", 404, "Not found"},
        RefusalRow{"Fetch", "GET", featurePath + "/1", "", 404, "Not found"},
        RefusalRow{"Update", "PATCH", featurePath + "/1", "{}", 404, "Not found"},
        RefusalRow{"Delete", "DELETE", featurePath + "/1", "", 404, "Not found"}),
    nameOf);

constexpr auto withoutPage
    = "{'title':'t','start_at':'2026-11-20T10:00:00Z','end_at':'2026-11-20T11:00:00Z','status_page_id':'x'}";

INSTANTIATE_TEST_SUITE_P(BadBodies, RefusedOfMaintenances,
    testing::Values(RefusalRow{"NoJson", "PATCH", path, "", 422, "The body is no JSON."},
        RefusalRow{"NoTitle", "POST", maintenancesPath, "{}", 422, R"("title" is missing.)"},
        RefusalRow{"NoPage", "POST", maintenancesPath, "{'title':'t'}", 422, R"("status_page_id" is missing.)"},
        RefusalRow{"NoStart", "POST", maintenancesPath, "{'title':'t','status_page_id':'page-1'}", 422,
            R"("start_at" is missing.)"},
        RefusalRow{"UnknownPage", "POST", maintenancesPath, withoutPage, 422, "There is no such status page."},
        RefusalRow{"BlankTitle", "PATCH", path, "{'title':' '}", 422, R"("title" is empty.)"},
        RefusalRow{"NoDate", "PATCH", path, "{'start_at':'tomorrow'}", 422, R"("start_at" is no date.)"},
        RefusalRow{"NumberAsDate", "PATCH", path, "{'start_at':1}", 422, R"("start_at" is no text.)"},
        RefusalRow{"EndBeforeStart", "PATCH", path, "{'end_at':'2026-11-20T09:59:59Z'}", 422,
            "The end lies before the start."}),
    nameOf);

struct WireDateRow {
    std::string text;
    bool isDate;
};

class WireDates : public testing::TestWithParam<WireDateRow> {};

TEST_P(WireDates, AreWholeSecondsInUtc)
{
    const auto time = readWireDate(GetParam().text);

    EXPECT_EQ(time.has_value(), GetParam().isDate);
    EXPECT_EQ(time ? wireDate(*time) : GetParam().text, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(EachForm, WireDates,
    testing::Values(WireDateRow{"2026-03-01T09:30:00Z", true}, WireDateRow{"2024-02-29T23:59:59Z", true},
        WireDateRow{"2026-02-29T00:00:00Z", false}, WireDateRow{"2026-13-01T00:00:00Z", false},
        WireDateRow{"2026-03-01T24:00:00Z", false}, WireDateRow{"2026-03-01T09:60:00Z", false},
        WireDateRow{"2026-03-01T09:30:60Z", false}, WireDateRow{"2026-03-01T09:30:00", false},
        WireDateRow{"2026-03-01 09:30:00Z", false}, WireDateRow{"2026-03-01", false},
        WireDateRow{"20x6-03-01T09:30:00Z", false}));

}  // namespace
}  // namespace larkspan::simulator
