#include "gallery/MonitorScenes.h"

#include <chrono>
#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "gallery/OpenedTab.h"
#include "gallery/ScreenStates.h"
#include "monitors/MonitorDetailView.h"
#include "monitors/MonitorRowView.h"
#include "monitors/StatusPageMonitorsView.h"

namespace larkspan::gallery {

using namespace std::chrono_literals;
using model::Monitor;
using model::MonitorMetricsWindow;
using model::MonitorStatus;
using model::MonitorType;

namespace {

using Page = workspace::StatusPageDetailView;
using Monitors = monitors::StatusPageMonitorsView;
using Detail = monitors::MonitorDetailView;
using Row = monitors::MonitorRowView;

Monitor monitor(std::string id, std::string name, MonitorType type, MonitorStatus status)
{
    Monitor made;
    made.id = std::move(id);
    made.name = std::move(name);
    made.type = type;
    made.status = status;
    made.isPaused = status == MonitorStatus::paused;
    return made;
}

std::vector<Monitor> everyStatus()
{
    return {monitor("1", "api.acme.example", MonitorType::http, MonitorStatus::operational),
        monitor("2", "mail gateway", MonitorType::smtp, MonitorStatus::paused),
        monitor("3", "Checkout", MonitorType::site, MonitorStatus::down),
        monitor("4", "Name server with a name that goes on and on, far beyond what any window has room for",
            MonitorType::dns, MonitorStatus::degraded),
        monitor("5", "<b>Bold</b> &amp; حالة الخدمة 🐦", MonitorType::custom, MonitorStatus::unknown)};
}

/// A day of samples, one for each quarter of an hour.
MonitorMetricsWindow day()
{
    MonitorMetricsWindow window{.avgMs = 312.4,
        .uptimePercentage = 99.982,
        .uptimeTrend = "stable",
        .responseTimeTrend = "up",
        .responseTimeChange = 4.2};
    window.latency.emplace();
    window.latencyPoints.emplace();
    for (int quarter = 0; quarter < 96; ++quarter) {
        const double wave = 300 + 60 * std::sin(quarter / 15.0) + 25 * std::sin(quarter * 2.1);
        const auto value = static_cast<std::int64_t>(quarter == 61 ? 880 : wave);
        window.latency->push_back(value);
        window.latencyPoints->push_back({.value = value, .timestamp = now() - 24h + quarter * 15min});
    }
    window.regionStates = std::vector<model::RegionState>{
        {.regionId = "eu-central-1", .regionName = "Frankfurt", .status = "up", .avgMs = 121},
        {.regionId = "us-east-1", .regionName = "Virginia", .status = "degraded", .avgMs = 512},
        {.regionId = "ap-northeast-1", .status = "down", .avgMs = 0},
        {.regionId = "sa-east-1", .status = "?", .avgMs = 4}};
    return window;
}

/// A scene of the tab "Monitors" of an opened page.
std::function<void(Stage&)> tab(std::function<void(Monitors&)> arrange)
{
    return sceneOfTab(Page::Tab::monitors, &Page::monitors, std::move(arrange));
}

void list(Monitors& view)
{
    view.viewModel->monitors = everyStatus();
    view.viewModel->isLoading = false;
}

Row& opened(Monitors& view, const std::string& id)
{
    view.toggleMetrics(id);
    return *view.rowViews().at(id);
}

void arrive(Row& row, MonitorMetricsWindow window)
{
    row.land(std::move(window));
    row.isLoadingMetrics = false;
}

void open(Monitors& view)
{
    list(view);
    arrive(opened(view, "1"), day());
    auto& closed = opened(view, "2");
    arrive(closed, {.avgMs = 182, .uptimePercentage = 99.94, .responseTimeTrend = "Up"});
    closed.toggleMetrics();
}

void selected(Monitors& view)
{
    open(view);
    view.rowViews().at("1")->panel()->selectLatency(61);
}

void graph(Monitors& view, const std::string& id, std::vector<std::int64_t> latency, int selectedIndex)
{
    auto& row = opened(view, id);
    arrive(row, {.latency = std::move(latency)});
    row.panel()->selectLatency(selectedIndex);
}

void graphs(Monitors& view)
{
    list(view);
    std::vector<std::int64_t> minutes;
    for (int minute = 0; minute < 1'440; ++minute)
        minutes.push_back(
            minute % 251 == 250 ? 400 : 180 + std::lround(40 * std::sin(minute / 200.0)) + minute * 7'919 % 23);
    graph(view, "1", std::move(minutes), 0);
    graph(view, "2", {312}, 0);
    graph(view, "3", {-50, 30, 80, -90, 10, 120}, 5);
    graph(view, "4", {0, 0, 0, 0}, 1);
    graph(view, "5", {250, 250}, 1);
}

void loadingMetrics(Monitors& view)
{
    list(view);
    opened(view, "1");
}

void withoutMetrics(Monitors& view)
{
    list(view);
    auto& row = opened(view, "1");
    row.isLoadingMetrics = false;
    row.metricsLoadError = "The server returned no metrics for this monitor.";
}

void emptyWindow(Monitors& view)
{
    list(view);
    arrive(opened(view, "1"), {});
    auto& slow = opened(view, "3");
    arrive(slow,
        {.avgMs = 1843,
            .uptimePercentage = 92.1,
            .uptimeTrend = "down",
            .responseTimeTrend = "odd",
            .responseTimeChange = -0.4});
}

void busy(Monitors& view)
{
    list(view);
    view.viewModel->performingActions = std::set<std::string>{"1", "2"};
}

void refusedInTheList(Monitors& view)
{
    list(view);
    view.viewModel->alert.raise("Server returned HTTP status code 409.");
}

void twoThousand(Monitors& view)
{
    std::vector<Monitor> many;
    for (int number = 0; number < 2'000; ++number) {
        many.push_back(monitor(std::to_string(number), "Monitor " + std::to_string(number), MonitorType::http,
            number % 3 == 0 ? MonitorStatus::down : MonitorStatus::operational));
    }
    view.viewModel->monitors = std::move(many);
    view.viewModel->isLoading = false;
}

/// A scene of one monitor, opened.
std::function<void(Stage&)> detail(Monitor shown, std::function<void(Detail&)> arrange)
{
    return tab(withDetail(std::move(shown), &Monitors::openMonitor, std::move(arrange)));
}

Monitor whole()
{
    auto made = monitor("1", "api.acme.example", MonitorType::http, MonitorStatus::operational);
    made.url = "https://api.acme.example/health?deep=1";
    made.intervalSeconds = 300;
    made.configUpdatedAt = now() - 24h * 40;
    made.lastCheckTime = now() - 40s;
    return made;
}

Monitor paused()
{
    return monitor("1", "mail gateway", MonitorType::smtp, MonitorStatus::paused);
}

}  // namespace

std::vector<Scene> monitorScenes()
{
    return {
        {"monitors-list", tab(list)},
        {"monitors-open", tab(open), 760, 760},
        {"monitors-open-narrow", tab(open), 480, 440},
        {"monitors-open-wide", tab(open), 1600, 900},
        {"monitors-open-narrow-large-font", tab(open), 480, 900, 20},
        {"monitors-selected", tab(selected)},
        {"monitors-selected-narrow-large-font", tab(selected), 480, 440, 20},
        {"monitors-graphs", tab(graphs), 760, 1300},
        {"monitors-loading-metrics", tab(loadingMetrics)},
        {"monitors-without-metrics", tab(withoutMetrics)},
        {"monitors-empty-window", tab(emptyWindow), 760, 760},
        {"monitors-busy", tab(busy)},
        {"monitors-refused", tab(refusedInTheList)},
        {"monitors-two-thousand", tab(twoThousand)},
        {"monitors-loading", tab(initialState)},
        {"monitors-empty", tab(empty)},
        {"monitors-failed", tab(failed)},
        {"monitor-whole", detail(whole(), initialState)},
        {"monitor-whole-narrow", detail(whole(), initialState), 480, 440},
        {"monitor-whole-narrow-large-font", detail(whole(), initialState), 480, 440, 20},
        {"monitor-paused", detail(paused(), initialState)},
        {"monitor-working", detail(whole(), working)},
        {"monitor-refused", detail(whole(), refused)},
    };
}

}  // namespace larkspan::gallery
