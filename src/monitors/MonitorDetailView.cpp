#include "monitors/MonitorDetailView.h"

#include <algorithm>
#include <utility>

#include "model/records/URL.h"
#include "presentation/text/WebAddress.h"
#include "support/LocalizedError.h"

namespace larkspan::monitors {

using model::Monitor;
using presentation::ActionButton;
using presentation::Command;
using presentation::Fact;
using presentation::Tone;
using support::Task;

MonitorDetailView::MonitorDetailView(Ports ports, Monitor monitor, Owner owner)
    : currentMonitor(*this, std::move(monitor))
    , action(std::make_shared<presentation::RunningAction>(ports.main, std::move(owner.reloadList)))
    , ports_(std::move(ports))
    , onUpdate_(std::move(owner.onUpdate))
{
}

support::Subscriptions MonitorDetailView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), action->objectWillChange(observer), ports_.actions->objectWillChange(observer)};
}

std::vector<Fact> MonitorDetailView::details() const
{
    const Monitor& monitor = *currentMonitor;
    std::vector<Fact> facts;
    if (monitor.url && model::URL::parse(*monitor.url)) {
        facts.push_back({.label = "URL",
            .text = *monitor.url,
            .destination = presentation::isWebAddress(*monitor.url) ? *monitor.url : "",
            .hasSmallLabel = true});
    }
    if (monitor.intervalSeconds) {
        facts.push_back(
            {.label = "Interval", .text = std::to_string(*monitor.intervalSeconds) + "s", .tone = Tone::primary});
    }
    if (monitor.configUpdatedAt) {
        facts.push_back({.label = "Config Updated",
            .text = ports_.locale.dateOnly(*monitor.configUpdatedAt),
            .tone = Tone::primary});
    }
    return facts;
}

Fact MonitorDetailView::lastCheck() const
{
    const auto& checked = currentMonitor->lastCheckTime;
    if (!checked) return {};
    return {.text = ports_.locale.dateOnly(*checked), .caption = ports_.locale.timeOnly(*checked)};
}

std::vector<Command<MonitorDetailView>> MonitorDetailView::commands() const
{
    const bool isPaused = currentMonitor->isPaused;
    const bool isIdle = !isBusy();
    return {
        {{.id = std::string(pauseResumeButton),
             .label = isPaused ? "Resume Monitor" : "Pause Monitor",
             .symbol = isPaused ? "play.fill" : "pause.fill",
             .tone = isPaused ? Tone::green : Tone::orange,
             .isProminent = true,
             .isEnabled = isIdle},
            [](auto& view) { view.perform(DetailAction::pauseResume); }},
        {{.id = std::string(checkNowButton),
             .label = "Run Check",
             .symbol = "arrow.clockwise",
             .tone = Tone::blue,
             .isProminent = true,
             .isEnabled = isIdle},
            [](auto& view) { view.perform(DetailAction::checkNow); }},
    };
}

std::vector<ActionButton> MonitorDetailView::buttons() const
{
    return presentation::buttonsOf(commands());
}

void MonitorDetailView::press(std::string_view id)
{
    presentation::press(id, commands(), *this);
}

void MonitorDetailView::perform(DetailAction wanted)
{
    if (!isBusy()) action->run(carryOut(shared_from_this(), wanted, ports_.actions->mark(id())));
}

Task<void> MonitorDetailView::carryOut(
    std::shared_ptr<MonitorDetailView> self, DetailAction wanted, std::shared_ptr<const void> /*mark*/)
{
    auto performing = MonitorActions::perform(self->ports_.actions, wanted, *self->currentMonitor);
    const auto refetched = co_await std::move(performing);
    if (refetched.failure) {
        // What the order did is known, so the list keeps its record instead of being fetched again.
        self->action->alert.raise(support::localizedDescription(refetched.failure));
        co_return;
    }
    const auto refreshed = std::ranges::find(refetched.monitors, self->id(), &Monitor::id);
    if (refreshed == refetched.monitors.end()) co_return;
    self->show(*refreshed);
    self->onUpdate_(*refreshed);
}

void MonitorDetailView::openURL() const
{
    const auto& url = currentMonitor->url;
    if (url && presentation::isWebAddress(*url)) ports_.links.open(*url);
}

}  // namespace larkspan::monitors
