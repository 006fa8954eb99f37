#include "maintenances/StatusPageMaintenancesView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "maintenances/MaintenancesOfAPage.h"

namespace larkspan::maintenances {

namespace {

using presentation::Content;
using presentation::Placeholder;
using presentation::Tone;

TEST_F(MaintenancesOfAPage, WithoutOneSayWhatWouldBeHere)
{
    serve({});
    appear();
    EXPECT_EQ(view->content(), Content::empty);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "calendar.badge.clock",
            .title = "No scheduled maintenances",
            .text = "Maintenance windows will appear here."}));
}

TEST_F(MaintenancesOfAPage, AreThoseThatNameThePageAndNoOther)
{
    serve({R"({"id": "other", "title": "a", "status_page_id": "q"})", record("2"), R"({"id": "none", "title": "a"})",
        R"({"id": "null", "title": "a", "status_page_id": null})", record("1")});
    appear();
    EXPECT_EQ(ids(), (Words{"2", "1"})) << "in the service's order";
    EXPECT_EQ(transport.requests.back().url, maintenancesURL) << "asked for the whole account";
}

TEST_F(MaintenancesOfAPage, AreRowsWithTheirStatusAndTheDayOfTheirStart)
{
    serve(
        {record("a", R"(, "start_at": "2026-11-21T09:00:00Z")"), record("b", R"(, "start_at": "2026-11-20T08:00:00Z")"),
            record("c", R"(, "end_at": "2026-11-20T08:00:00Z")"), record("d", R"(, "status": "cancelled")")});
    appear();
    EXPECT_EQ(view->rows(),
        (std::vector<MaintenanceRow>{{"a", "Work a", {"Scheduled", Tone::blue}, "2026-11-21"},
            {"b", "Work b", {"In Progress", Tone::yellow}, "2026-11-20"},
            {"c", "Work c", {"Completed", Tone::green}, ""}, {"d", "Work d", {"Cancelled", Tone::gray}, ""}}));
}

}  // namespace

}  // namespace larkspan::maintenances
