#include <algorithm>
#include <array>

#include "account/Account.h"
#include "account/MonitorMetrics.h"
#include "service/Known.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"
#include "service/WireMetrics.h"
#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

struct Span {
    const char* name;
    std::chrono::minutes length;
};

constexpr std::array<Span, 4> spans{
    {{"1h", 1h}, {"24h", 24h}, {"7d", std::chrono::days(7)}, {"30d", std::chrono::days(30)}}};

Json wireMonitor(const Monitor& monitor)
{
    return wireRecord({
        {"id", wireId(monitor.id)},
        {"name", monitor.name},
        {"type", monitor.type},
        {"target", monitor.target},
        {"enabled", monitor.enabled},
        {"state", monitor.state},
        {"created_at", monitor.createdAt},
        {"updated_at", monitor.updatedAt},
        {"interval_seconds", monitor.intervalSeconds},
        {"status_page_id", monitor.statusPageId},
        {"component_id", monitor.componentId},
    });
}

Json wireWithMetrics(const Monitor& monitor, support::Time now)
{
    auto windows = Json::object();
    for (const auto& span : spans) {
        auto window = wireFigures(metricsOf(monitor, span.length, now), monitor.metricsForm);
        if (window) windows[span.name] = *std::move(window);
    }
    return wireRecord({
        {"id", monitor.id},
        {"name", monitor.name},
        {"target", monitor.target},
        {"component_id", monitor.componentId},
        {"metrics", std::move(windows)},
    });
}

/// Requests for the monitors under components, with or without their metrics, have the same answer.
Answer listUnderComponents(const Call& call)
{
    const auto components = call.request.queryList("component_ids");
    auto monitors = Json::array();
    for (const auto& monitor : call.account.monitors) {
        const bool isAsked = monitor.componentId && std::ranges::count(components, *monitor.componentId) > 0;
        if (isAsked) monitors.push_back(wireWithMetrics(monitor, call.now));
    }
    return {.result = Json::object({{"monitors", monitors}, {"data", monitors}}), .isWhole = true};
}

/// An unknown monitor has no window, which is not an error.
Answer listMetrics(const Call& call)
{
    const auto range = call.request.query("range").value_or("");
    const auto span = std::ranges::find(spans, range, &Span::name);
    if (span == spans.end()) throw Refusal(422, "There is no such range.");
    auto windows = Json::object();
    for (const auto& id : call.request.queryList("ids")) {
        const auto* monitor = call.account.findMonitor(id);
        if (!monitor) continue;
        auto window = wireWindow(metricsOf(*monitor, span->length, call.now), monitor->metricsForm);
        if (window) windows[id] = *std::move(window);
    }
    return ok(wireRecord({{"metrics", std::move(windows)}}));
}

Monitor& named(const Call& call)
{
    return known(call.account.findMonitor(call.wildcards.front()));
}

/// The result comes later, as the state of a monitor that had none so far.
Answer runMonitor(const Call& call)
{
    auto& monitor = named(call);
    if (monitor.isPaused()) throw Refusal(409, "The monitor is paused.");
    if (!monitor.state) monitor.state = "up";
    return {202};
}

Answer enable(const Call& call, bool isToRun)
{
    auto& monitor = named(call);
    if (monitor.isPaused() != isToRun) throw Refusal(409, isToRun ? "The monitor runs." : "The monitor is paused.");
    monitor.enabled = isToRun;
    monitor.updatedAt = call.now;
    return ok(wireRecord({{"success", true}}));
}

}  // namespace

void addMonitorsRoutes(Router& router)
{
    router.add("GET", "/user/api/v1/monitors",
        [](const Call& call) { return ok(wireList(call.account.monitors, wireMonitor)); });
    router.add("GET", "/user/api/monitors", listUnderComponents);
    router.add("GET", "/user/api/monitors/metrics", listMetrics);
    router.add("POST", "/user/api/monitors/*/run", runMonitor);
    router.add("POST", "/user/api/monitors/*/pause", [](const Call& call) { return enable(call, false); });
    router.add("POST", "/user/api/monitors/*/resume", [](const Call& call) { return enable(call, true); });
}

}  // namespace larkspan::simulator
