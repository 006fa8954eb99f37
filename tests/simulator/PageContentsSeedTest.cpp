#include "account/PageContentsSeed.h"

#include <gmock/gmock.h>

#include <chrono>
#include <set>

#include "SeededService.h"
#include "account/IncidentWorkflow.h"
#include "model/bodies/MonitorMetricsResponse.h"
#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "model/records/ComponentMonitor.h"
#include "model/records/Monitor.h"
#include "model/records/MonitorWithMetrics.h"
#include "model/records/OnCallStatus.h"
#include "model/records/StatusPage.h"
#include "model/records/StatusPageAnalytics.h"
#include "model/records/Team.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

template <typename Record>
std::set<std::string> idsOf(const std::vector<Record>& records)
{
    std::set<std::string> ids;
    for (const auto& record : records) ids.insert(record.id);
    return ids;
}

std::string joined(const std::set<std::string>& ids)
{
    std::string all;
    for (const auto& id : ids) all += (all.empty() ? "" : ",") + id;
    return all;
}

class PageContents : public SeededService, public testing::WithParamInterface<ResultShape> {
protected:
    PageContents() { service_.setShape(GetParam()); }
};

TEST_P(PageContents, AreReadByTheClientInEveryShape)
{
    const auto account = copyOfAccount();

    EXPECT_EQ(idsOf(readList<model::ComponentsResponse>("/user/api/components")), idsOf(account.components));
    EXPECT_EQ(idsOf(read<std::vector<model::Monitor>>("/user/api/v1/monitors")), idsOf(account.monitors));
    EXPECT_EQ(idsOf(readList<model::ComponentGroupsResponse>("/user/api/component-groups?status_page_id=page-1")),
        (std::set<std::string>{"group-1", "group-2"}));
}

TEST_P(PageContents, MonitorsUnderComponentsComeWithAndWithoutMetricsFromOneAnswer)
{
    const auto body = get("/user/api/monitors?component_ids=1,2");

    const auto plain = decoder_.decodeBare<model::ComponentMonitorsResponse>(body).monitors;
    const auto withMetrics = decoder_.decodeResult<std::vector<model::MonitorWithMetrics>>(body);
    EXPECT_EQ(idsOf(plain), (std::set<std::string>{"1", "2"}));
    EXPECT_EQ(idsOf(withMetrics), idsOf(plain));
    EXPECT_TRUE(withMetrics.at(0).metrics.thirtyDays);
}

TEST_P(PageContents, MetricsOfEachMonitorAreReadByTheClient)
{
    const auto ids = idsOf(copyOfAccount().monitors);
    const auto windows
        = read<model::MonitorMetricsResponse>("/user/api/monitors/metrics?range=24h&ids=" + joined(ids)).metrics;

    EXPECT_LT(windows.size(), ids.size()) << "some monitor has no window";
    EXPECT_GT(windows.size(), ids.size() / 2);
}

INSTANTIATE_TEST_SUITE_P(
    EachShape, PageContents, testing::Values(ResultShape::underData, ResultShape::bare, ResultShape::inOwnEnvelope));

TEST_F(SeededService, HasComponentsInAndOutsideOfGroupsAndMonitorsUnderThemOnEachPage)
{
    const auto account = copyOfAccount();
    for (const auto& page : account.statusPages) {
        const auto isOfPage = [&page](const auto& record) { return record.statusPageId == page.id; };
        EXPECT_GE(std::ranges::count_if(account.components, isOfPage), 4) << page.id;
        EXPECT_GE(std::ranges::count_if(account.monitors, isOfPage), 4) << page.id;
        EXPECT_TRUE(std::ranges::any_of(account.components, [&](const Component& component) {
            return isOfPage(component) && !component.groupId;
        })) << page.id;
    }
    EXPECT_TRUE(std::ranges::any_of(account.components, [](const Component& one) { return one.groupId.has_value(); }));
}

TEST_F(SeededService, HasNothingThatBelongsToAnotherPageThanItsGroupOrItsComponent)
{
    auto account = copyOfAccount();
    for (const auto& component : account.components) {
        if (component.groupId) {
            EXPECT_EQ(account.findComponentGroup(*component.groupId)->statusPageId, component.statusPageId);
        }
    }
    for (const auto& monitor : account.monitors) {
        EXPECT_EQ(account.findComponent(monitor.componentId.value())->statusPageId, monitor.statusPageId);
    }
}

TEST_F(SeededService, HasMonitorsOfEachTypeAndEachStatus)
{
    std::set<model::MonitorType> types;
    std::set<model::MonitorStatus> statuses;
    for (const auto& monitor : read<std::vector<model::Monitor>>("/user/api/v1/monitors")) {
        types.insert(monitor.type);
        statuses.insert(monitor.status);
    }
    EXPECT_EQ(types.size(), 7u);
    EXPECT_EQ(statuses.size(), 5u);
}

TEST_F(SeededService, ShowsOnTheFirstComponentHowItsPageStands)
{
    const auto account = copyOfAccount();
    const std::map<std::string, std::string> words{
        {"operational", "up"}, {"degraded", "degraded"}, {"down", "down"}, {"maintenance", "undermaintenance"}};
    for (const auto& page : account.statusPages) {
        const auto first = std::ranges::find(account.components, page.id, &Component::statusPageId);
        EXPECT_EQ(first->state, words.at(page.status.value())) << page.id;
    }
}

TEST_F(SeededService, LetsTheFirstComponentAndItsMonitorsFollowTheIncidentsOfTheirPage)
{
    const auto stateOf = [this] {
        const auto account = copyOfAccount();
        return account.components.front().state.value() + ' ' + account.monitors.front().state.value();
    };
    service_.withAccount([this](Account& account) {
        Incident draft;
        draft.title = "Down";
        draft.statusPageId = "page-1";
        draft.severityName = "major";
        openIncident(account, draft, clock_.time);
    });
    EXPECT_EQ(stateOf(), "down down");

    service_.withAccount([this](Account& account) { resolve(account, account.incidents.front(), clock_.time); });
    EXPECT_EQ(stateOf(), "up up");
}

TEST_F(SeededService, TellsPeopleDutyAndFigures)
{
    EXPECT_EQ(read<std::vector<model::Team>>("/user/api/v1/teams").size(), 2u);
    EXPECT_EQ(read<std::vector<model::TeamMembership>>("/user/api/v1/teams/memberships").size(), 6u);
    EXPECT_EQ(read<model::OnCallStatus>("/user/api/v1/on-call/my-status").teamName, "Platform");
    EXPECT_GT(read<model::StatusPageAnalytics>("/user/api/analytics/status-pages/page-2/views").viewCount, 0);
    EXPECT_GT(read<model::SubscriberCount>("/user/api/v1/status-pages/page-2/subscribers/count").count, 0);
}

TEST(LargeSeed, OfTenThousandPagesHasTenThousandComponentsAndMonitorsWithEachIdOnce)
{
    const auto account = seededAccount(10'000, fakes::ManualClock().time);

    EXPECT_GT(account.components.size(), 10'000u);
    EXPECT_LT(account.components.size(), 11'000u);
    EXPECT_EQ(idsOf(account.components).size(), account.components.size());
    EXPECT_EQ(idsOf(account.monitors).size(), account.monitors.size());
}

TEST(EmptySeed, HasNothingOnIt)
{
    const auto account = seededAccount(0, fakes::ManualClock().time);

    EXPECT_TRUE(account.componentGroups.empty());
    EXPECT_TRUE(account.components.empty());
    EXPECT_TRUE(account.monitors.empty());
}

}  // namespace
}  // namespace larkspan::simulator
