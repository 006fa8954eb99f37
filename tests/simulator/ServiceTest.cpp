#include "service/Service.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Samples.h"
#include "account/Storyline.h"
#include "fakes/ManualClock.h"
#include "json/Json.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;
using samples::overviewPath;
using samples::pagesPath;
using samples::request;

struct AuthenticationRow {
    std::string_view name;
    Headers headers;
    int status;
};

class Authentication : public testing::TestWithParam<AuthenticationRow> {};

TEST_P(Authentication, TakesBothHeadersWithTheSameKnownKeyOnly)
{
    Service service(samples::account());

    EXPECT_EQ(service.answer({"GET", pagesPath, GetParam().headers, {}}).status, GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(EachWay, Authentication,
    testing::Values(
        AuthenticationRow{"Both", {{"Authorization", "Bearer kst_test_key"}, {"X-API-Key", "kst_test_key"}}, 200},
        AuthenticationRow{
            "BothInOtherCase", {{"AUTHORIZATION", "Bearer kst_test_key"}, {"x-api-key", "kst_test_key"}}, 200},
        AuthenticationRow{"Neither", {}, 401},
        AuthenticationRow{"BearerOnly", {{"Authorization", "Bearer kst_test_key"}}, 401},
        AuthenticationRow{"KeyOnly", {{"X-API-Key", "kst_test_key"}}, 401},
        AuthenticationRow{"WithoutScheme", {{"Authorization", "kst_test_key"}, {"X-API-Key", "kst_test_key"}}, 401},
        AuthenticationRow{
            "OtherScheme", {{"Authorization", "bearer kst_test_key"}, {"X-API-Key", "kst_test_key"}}, 401},
        AuthenticationRow{
            "TwoKeys", {{"Authorization", "Bearer kst_test_key"}, {"X-API-Key", "kst_read_nothing"}}, 401},
        AuthenticationRow{"UnknownKey", {{"Authorization", "Bearer other"}, {"X-API-Key", "other"}}, 401},
        AuthenticationRow{"EmptyKey", {{"Authorization", "Bearer "}, {"X-API-Key", ""}}, 401},
        AuthenticationRow{"KeyWithoutRights",
            {{"Authorization", "Bearer kst_read_nothing"}, {"X-API-Key", "kst_read_nothing"}}, 403}),
    [](const auto& row) { return std::string(row.param.name); });

struct RouteRow {
    std::string_view name;
    std::string method;
    std::string target;
    int status;
};

class Routes : public testing::TestWithParam<RouteRow> {};

TEST_P(Routes, StandUnderTheirOwnBaseAndMethodOnly)
{
    Service service(samples::account());

    EXPECT_EQ(service.answer(request(GetParam().target, GetParam().method)).status, GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(EachPath, Routes,
    testing::Values(RouteRow{"Pages", "GET", "/user/api/v1/status-pages", 200},
        RouteRow{"PagesWithAQuery", "GET", "/user/api/v1/status-pages?x=1", 200},
        RouteRow{"PagesUnderTheOtherBase", "GET", "/user/api/status-pages", 404},
        RouteRow{"Overview", "GET", "/user/api/status-pages/status", 200},
        RouteRow{"OverviewUnderTheOtherBase", "GET", "/user/api/v1/status-pages/status", 405},
        RouteRow{"Incidents", "GET", "/user/api/v1/incidents", 200},
        RouteRow{"IncidentsUnderTheOtherBase", "GET", "/user/api/incidents", 404},
        RouteRow{"States", "GET", "/user/api/incident-states", 200},
        RouteRow{"StatesUnderTheOtherBase", "GET", "/user/api/v1/incident-states", 404},
        RouteRow{"Maintenances", "GET", "/user/api/v1/maintenances", 200},
        RouteRow{"MaintenancesUnderTheOtherBase", "GET", "/user/api/maintenances", 404},
        RouteRow{"TrailingSlash", "GET", "/user/api/v1/status-pages/", 404},
        RouteRow{"DoubleSlash", "GET", "/user/api/v1//status-pages", 404}, RouteRow{"Outside", "GET", "/", 404},
        RouteRow{"Post", "POST", "/user/api/v1/status-pages", 405},
        RouteRow{"Delete", "DELETE", "/user/api/status-pages/status", 405}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Service, NamesTheAllowedMethodsWithAWrongOne)
{
    Service service(samples::account());

    EXPECT_THAT(service.answer(request(pagesPath, "PUT")).headers, testing::Contains(testing::Pair("Allow", "GET")));
}

TEST(Service, SendsPagesUnderDataOrBare)
{
    Service service(samples::account(2));

    const auto wrapped = parsedJson(service.answer(request(pagesPath)).body);
    service.setShape(ResultShape::bare);
    const auto bare = parsedJson(service.answer(request(pagesPath)).body);

    EXPECT_EQ(wrapped, Json::object({{"data", bare}}));
    EXPECT_EQ(bare.size(), 2u);
}

TEST(ResultShapes, HaveNames)
{
    EXPECT_EQ(resultShape("data"), ResultShape::underData);
    EXPECT_EQ(resultShape("bare"), ResultShape::bare);
    EXPECT_EQ(resultShape("own"), ResultShape::inOwnEnvelope);
    EXPECT_EQ(resultShape("round"), std::nullopt);
}

TEST(Service, SendsAPageInSnakeCaseAndLeavesOutWhatItLacks)
{
    Account account{{{samples::key, KeyRights::full}}, {}};
    StatusPage page;
    page.id = "p1";
    page.name = "Checkout";
    page.createdAt = support::Time(std::chrono::sys_days(std::chrono::year(2026) / 3 / 1) + 9h + 30min + 5ms);
    page.metrics = std::vector<PageMetric>{{"30d", 99.5, std::nullopt}};
    account.statusPages.push_back(page);
    Service service(std::move(account));
    service.setShape(ResultShape::bare);

    EXPECT_EQ(service.answer(request(pagesPath)).body,
        R"([{"id":"p1","name":"Checkout","created_at":"2026-03-01T09:30:00.005Z",)"
        R"("metrics":[{"period":"30d","uptime":99.5}]}])");
}

TEST(Service, WordsThePagesHealthInTheOverviewsOwnCodes)
{
    Service service(samples::account(2));
    service.setShape(ResultShape::bare);
    service.withAccount([](Account& account) {
        account.statusPages[0].setHealth(PageHealth::majorOutage);
        account.statusPages[1].overview.reset();
    });

    EXPECT_EQ(service.answer(request(overviewPath)).body,
        R"({"status_pages":[{"id":"page-1","name":"Northwind Payments API",)"
        R"("status":{"code":"major-outage","label":"Major Outage"}}]})");
    EXPECT_EQ(parsedJson(service.answer(request(pagesPath)).body).at(0).at("status"), Json("down"));
}

TEST(Service, RecordsWhatItWasSentInOrder)
{
    Service service(samples::account());
    Request write{"POST", pagesPath + "?q", {{"X-Other", "1"}}, "{\"a\":1}"};

    service.answer(write);
    service.answer(request(overviewPath));

    const auto received = service.received();
    ASSERT_EQ(received.size(), 2u);
    EXPECT_EQ(received[0].method, "POST");
    EXPECT_EQ(received[0].target, pagesPath + "?q");
    EXPECT_EQ(received[0].header("x-other"), "1");
    EXPECT_EQ(received[0].body, "{\"a\":1}");
    EXPECT_EQ(received[1].target, overviewPath);

    service.forgetReceived();
    EXPECT_TRUE(service.received().empty());
}

TEST(Service, LetsAStoryHappenByTheClock)
{
    fakes::ManualClock clock;
    Service service(samples::account(), clock);
    service.live(Storyline::ordinaryDay());
    clock.time += 45s;

    service.answer(request(pagesPath));

    service.withAccount([](Account& account) { EXPECT_EQ(account.findPage("page-1")->status, "down"); });
}

}  // namespace
}  // namespace larkspan::simulator
