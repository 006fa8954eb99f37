#include "gallery/PageScenes.h"

#include <chrono>
#include <string>
#include <utility>

#include "workspace/SettingsView.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan::gallery {

using namespace std::chrono_literals;
using model::StatusPage;

namespace {

StatusPage acme()
{
    StatusPage page;
    page.id = "a";
    page.name = "Acme Cloud";
    page.status = model::StatusPageStatus::down;
    page.url = model::URL::parse("https://status.acme.example");
    page.description = "Sign-in, storage and mail of Acme, for customers in Europe and in North America.";
    page.createdAt = now() - 24h * 500;
    page.updatedAt = now() - 3h;
    page.metrics = std::vector<model::StatusPageMetric>{
        {"24h", 99.92, 1}, {"7d", 98.4, 3}, {"30d", std::nullopt, 0}, {"90d", 99.99, std::nullopt}};
    return page;
}

model::Incident incident(std::string id, std::string title, model::IncidentStatus status)
{
    model::Incident made;
    made.id = std::move(id);
    made.title = std::move(title);
    made.status = status;
    made.statusPageId = "a";
    return made;
}

void open(Stage& stage, StatusPage page)
{
    stage.state().statusPages = std::vector{page};
    stage.state().lastRefresh = now() - 12s;
    stage.dashboard().openPage(page.id);
}

void busy(Stage& stage)
{
    stage.state().incidents = std::vector{incident("1", "Login errors for EU customers", model::IncidentStatus::active),
        incident("2", "Slow checkout with a title that is too long for one line in a window of any size at all, surely",
            model::IncidentStatus::acknowledged)};
    model::Maintenance maintenance;
    maintenance.id = "3";
    maintenance.title = "Database upgrade";
    maintenance.status = "in_progress";
    maintenance.statusPageId = "a";
    stage.state().maintenances = std::vector{maintenance};
    open(stage, acme());
}

void quiet(Stage& stage)
{
    auto page = acme();
    page.status = model::StatusPageStatus::operational;
    open(stage, std::move(page));
}

void littleKnown(Stage& stage)
{
    StatusPage page;
    page.id = "a";
    page.name = "A page with a name that is much too long for the header of a window, so that it has to give way";
    open(stage, std::move(page));
}

}  // namespace

std::vector<Scene> pageScenes()
{
    return {
        {"page-overview-busy", busy},
        {"page-overview-busy-narrow", busy, 480, 440},
        {"page-overview-busy-wide", busy, 1600, 900},
        {"page-overview-busy-narrow-large-font", busy, 480, 440, 20},
        {"page-overview-quiet", quiet},
        {"page-overview-little-known", littleKnown},
    };
}

}  // namespace larkspan::gallery
