#include "workspace/StatusPageOverviewView.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "fakes/FakeLocaleText.h"
#include "fakes/PolledAccount.h"

namespace larkspan::workspace {

namespace {

using namespace std::chrono_literals;
using model::IncidentStatus;
using model::StatusPageStatus;
using presentation::Fact;
using presentation::Headline;
using presentation::Marker;
using presentation::Tone;

class Overview : public testing::Test, public fakes::PolledAccount {
protected:
    Overview()
    {
        page.id = "a";
        page.name = "Acme";
    }

    StatusPageOverviewView view() const { return StatusPageOverviewView::of(page, *state, locale, now); }

    void addIncident(const std::string& id, IncidentStatus status, std::optional<std::string> pageId)
    {
        auto incidents = *state->incidents;
        model::Incident made;
        made.id = id;
        made.title = "incident " + id;
        made.status = status;
        made.statusPageId = std::move(pageId);
        incidents.push_back(std::move(made));
        state->incidents = std::move(incidents);
    }

    void addMaintenance(const std::string& id, const std::string& status, std::optional<std::string> pageId)
    {
        auto maintenances = *state->maintenances;
        model::Maintenance made;
        made.id = id;
        made.title = "maintenance " + id;
        made.status = status;
        made.statusPageId = std::move(pageId);
        maintenances.push_back(std::move(made));
        state->maintenances = std::move(maintenances);
    }

    /// The titles of the current events.
    std::vector<std::string> activity() const
    {
        std::vector<std::string> titles;
        for (const auto& row : view().activity) titles.push_back(row.title);
        return titles;
    }

    support::Time now = clock.now();
    fakes::FakeLocaleText locale;
    model::StatusPage page;
};

struct StatusRow {
    StatusPageStatus status;
    Headline shown;
};

class OverviewStatus : public Overview, public testing::WithParamInterface<StatusRow> {};

TEST_P(OverviewStatus, IsAWordWithSymbolAndColour)
{
    page.status = GetParam().status;
    EXPECT_EQ(view().status, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(EachRow, OverviewStatus,
    testing::Values(StatusRow{StatusPageStatus::operational,
                        {"checkmark.circle.fill", Tone::green, "Operational", "Current Status"}},
        StatusRow{
            StatusPageStatus::degraded, {"exclamationmark.triangle.fill", Tone::yellow, "Degraded", "Current Status"}},
        StatusRow{StatusPageStatus::down, {"xmark.octagon.fill", Tone::red, "Down", "Current Status"}},
        StatusRow{
            StatusPageStatus::maintenance, {"wrench.and.screwdriver", Tone::blue, "Maintenance", "Current Status"}},
        StatusRow{StatusPageStatus::unknown, {"questionmark.circle", Tone::gray, "Unknown", "Current Status"}}));

TEST_F(Overview, OfAPageWithoutURLAndDatesHasNoStatusPageGroupAtAll)
{
    EXPECT_TRUE(view().information.empty());
}

TEST_F(Overview, TellsURLUpdateAndCreationInTheirOrder)
{
    page.url = model::URL::parse("https://status.acme.example/page?x=1");
    page.updatedAt = now - 1h;
    page.createdAt = now - 24h * 400;
    EXPECT_EQ(view().information,
        (std::vector<Fact>{{.label = "Public URL",
                               .text = "status.acme.example",
                               .destination = "https://status.acme.example/page?x=1"},
            {.label = "Last Updated",
                .text = "1 hour ago",
                .explanation = locale.dateOnly(now - 1h) + ", " + locale.timeOnly(now - 1h)},
            {.label = "Created", .text = locale.dateOnly(now - 24h * 400)}}));
}

TEST_F(Overview, TellsOnlyWhatThePageHas)
{
    page.createdAt = now;
    ASSERT_EQ(view().information.size(), 1u);
    EXPECT_EQ(view().information.front().label, "Created");
}

TEST_F(Overview, AURLWithoutAHostShowsItsWholeTextAsTheLinksText)
{
    page.url = model::URL::parse("mailto:team@acme.example");
    ASSERT_EQ(view().information.size(), 1u);
    EXPECT_EQ(view().information.front().text, "mailto:team@acme.example");
}

TEST_F(Overview, AURLThatIsNoWebAddressIsNoLink)
{
    for (const auto* const address :
        {"file:///etc/passwd", "javascript:alert(1)", "ftp://acme.example/", "/relative"}) {
        page.url = model::URL::parse(address);
        ASSERT_TRUE(page.url) << address;
        EXPECT_EQ(view().information.front().destination, "") << address;
    }
}

TEST_F(Overview, WithoutActivitySaysSo)
{
    EXPECT_TRUE(view().activity.empty());
    EXPECT_EQ(view().quiet, (Marker{.symbol = "checkmark.circle", .text = "No active incidents or maintenance"}));
}

TEST_F(Overview, ListsIncidentsThenMaintenancesInTheAccountsOrder)
{
    addMaintenance("1", "in_progress", "a");
    addIncident("2", IncidentStatus::acknowledged, "a");
    addIncident("1", IncidentStatus::active, "a");
    EXPECT_EQ(view().activity,
        (std::vector<ActivityRow>{{"incident-2", "eye.fill", Tone::orange, "incident 2", "Incident Update"},
            {"incident-1", "exclamationmark.triangle.fill", Tone::red, "incident 1", "Active Incident"},
            {"maintenance-1", "wrench.and.screwdriver.fill", Tone::blue, "maintenance 1", "Maintenance in Progress"}}));
    EXPECT_EQ(view().quiet, Marker{});
}

TEST_F(Overview, LeavesOutWhatIsOfAnotherPageOrOfNone)
{
    addIncident("1", IncidentStatus::active, "b");
    addIncident("2", IncidentStatus::active, std::nullopt);
    addMaintenance("1", "in_progress", "b");
    addMaintenance("2", "in_progress", std::nullopt);
    EXPECT_TRUE(view().activity.empty());
}

TEST_F(Overview, AnIncidentThatIsResolvedOrCompletedNeverShows)
{
    addIncident("1", IncidentStatus::resolved, "a");
    addIncident("2", IncidentStatus::completed, "a");
    EXPECT_TRUE(view().activity.empty());
}

TEST_F(Overview, AMaintenanceCountsByItsStatusInAnyCaseOfLettersAndNoOther)
{
    addMaintenance("1", "In_Progress", "a");
    addMaintenance("2", "scheduled", "a");
    addMaintenance("3", "completed", "a");
    addMaintenance("4", "in progress", "a");
    EXPECT_EQ(activity(), std::vector<std::string>{"maintenance 1"});
}

TEST_F(Overview, WithActiveMaintenanceButNoIncidentShowsOnlyTheMaintenance)
{
    addMaintenance("1", "in_progress", "a");
    EXPECT_EQ(activity(), std::vector<std::string>{"maintenance 1"});
    EXPECT_EQ(view().quiet, Marker{});
}

TEST_F(Overview, ADescriptionOfZeroLengthBehavesAsAnAbsentOne)
{
    EXPECT_EQ(view().about, "");
    page.description = "";
    EXPECT_EQ(view().about, "");
    page.description = "<b>We</b> host **mail**.";
    EXPECT_EQ(view().about, "<b>We</b> host **mail**.") << "plain text";
}

TEST_F(Overview, AnEmptyListOfFiguresAndAnAbsentOneBothHideUptime)
{
    EXPECT_TRUE(view().uptime.empty());
    page.metrics.emplace();
    EXPECT_TRUE(view().uptime.empty());
}

struct UptimeRow {
    model::StatusPageMetric metric;
    Fact shown;
};

class OverviewUptime : public Overview, public testing::WithParamInterface<UptimeRow> {};

TEST_P(OverviewUptime, ShowsShareColourAndCount)
{
    page.metrics = std::vector{GetParam().metric};
    EXPECT_EQ(view().uptime, std::vector{GetParam().shown});
}

INSTANTIATE_TEST_SUITE_P(EachBound, OverviewUptime,
    testing::Values(UptimeRow{{"24h", 99.0, 0}, {"Last 24 Hours", "99.00%", Tone::orange, "", "0 incidents"}},
        UptimeRow{{"24h", 99.01, 1}, {"Last 24 Hours", "99.01%", Tone::green, "", "1 incident"}},
        UptimeRow{{"7d", 100.0, 2}, {"Last 7 Days", "100.00%", Tone::green, "", "2 incidents"}},
        UptimeRow{{"7d", 99.995, std::nullopt}, {"Last 7 Days", "100.00%", Tone::green, "", ""}},
        UptimeRow{{"30d", std::nullopt, 3}, {"Last 30 Days", "Unavailable", Tone::secondary, "", "3 incidents"}},
        UptimeRow{{"12w", 0.0, -1}, {"12w", "0.00%", Tone::orange, "", "-1 incidents"}}));

TEST_F(Overview, AShareBeyondAllBoundsIsWrittenWhole)
{
    page.metrics = std::vector<model::StatusPageMetric>{{"24h", -1e300, std::nullopt}};
    const auto text = view().uptime.front().text;
    EXPECT_EQ(text.size(), 306u);
    EXPECT_TRUE(text.starts_with("-1000000000000000052504760255204420248704")) << text;
    EXPECT_TRUE(text.ends_with(".00%"));
}

TEST_F(Overview, OfManyFiguresListsTheFirstAndSaysHowManyMoreThereAre)
{
    page.metrics = std::vector<model::StatusPageMetric>(100, {"24h", 99.9, 1});
    EXPECT_EQ(view().uptime.size(), 100u);
    EXPECT_EQ(view().moreUptime, "");
    page.metrics->resize(20'000, {"7d", 99.9, 1});
    EXPECT_EQ(view().uptime.size(), 100u);
    EXPECT_EQ(view().moreUptime, "and 19900 more");
}

TEST_F(Overview, ADescriptionBeyondAllBoundsIsShownInPart)
{
    page.description = std::string(1'000'000, 'x');
    EXPECT_EQ(view().about, std::string(20'000, 'x') + "…");
}

TEST_F(Overview, ListsTheFiguresInTheirOrder)
{
    page.metrics = std::vector<model::StatusPageMetric>{{"90d", 99.9, 1}, {"1h", 98.0, 2}};
    ASSERT_EQ(view().uptime.size(), 2u);
    EXPECT_EQ(view().uptime[0].label, "Last 90 Days");
    EXPECT_EQ(view().uptime[1].label, "Last Hour");
}

struct PeriodRow {
    std::string period;
    std::string label;
};

class PeriodLabel : public testing::TestWithParam<PeriodRow> {};

TEST_P(PeriodLabel, IsTheTablesOrThePeriodAsReceived)
{
    EXPECT_EQ(periodLabel(GetParam().period), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(EachRow, PeriodLabel,
    testing::Values(PeriodRow{"1h", "Last Hour"}, PeriodRow{"24h", "Last 24 Hours"}, PeriodRow{"7d", "Last 7 Days"},
        PeriodRow{"30d", "Last 30 Days"}, PeriodRow{"90d", "Last 90 Days"}, PeriodRow{"1H", "1H"},
        PeriodRow{"365d", "365d"}, PeriodRow{"", ""}));

}  // namespace

}  // namespace larkspan::workspace
