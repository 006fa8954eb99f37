#include "monitors/MonitorDetailView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "fakes/OpenedDetail.h"
#include "fakes/Refusal.h"
#include "model/json/ISO8601.h"

namespace larkspan::monitors {

namespace {

using model::Monitor;
using presentation::ActionButton;
using presentation::Fact;
using presentation::Pill;
using presentation::Tone;
using Words = std::vector<std::string>;

const std::string listURL = "https://service.example/user/api/v1/monitors";
const std::string actionURL = "https://service.example/user/api/monitors/7/";

std::string listOf(const std::string& keys)
{
    return R"([{"id": "1", "name": "Other"}, {"id": "7", "name": "Gateway", "type": "tcp")" + keys + "}]";
}

class DetailOfAMonitor : public fakes::OpenedDetail<MonitorDetailView> {
protected:
    static Monitor gateway()
    {
        Monitor monitor;
        monitor.id = "7";
        monitor.name = "Gateway";
        monitor.type = model::MonitorType::tcp;
        monitor.status = model::MonitorStatus::operational;
        return monitor;
    }

    std::shared_ptr<MonitorDetailView> opened(const Monitor& monitor = gateway())
    {
        MonitorDetailView::Owner owner{
            .onUpdate = [this](const Monitor& refreshed) { note("update of " + refreshed.name); }};
        view = std::make_shared<MonitorDetailView>(
            MonitorDetailView::Ports{main, actions, locale, links}, monitor, std::move(owner));
        return view;
    }

    const std::shared_ptr<MonitorActions> actions = std::make_shared<MonitorActions>(api);
};

TEST_F(DetailOfAMonitor, ShowsWhatTheRecordSays)
{
    auto monitor = gateway();
    monitor.url = "https://api.acme.example/health?deep=1";
    monitor.intervalSeconds = 60;
    monitor.configUpdatedAt = model::readISO8601("2026-11-20T09:30:00Z");
    EXPECT_EQ(MonitorDetailView::title, "Monitor Details");
    EXPECT_EQ(opened(monitor)->details(),
        (std::vector<Fact>{{.label = "URL",
                               .text = "https://api.acme.example/health?deep=1",
                               .destination = "https://api.acme.example/health?deep=1",
                               .hasSmallLabel = true},
            {.label = "Interval", .text = "60s", .tone = Tone::primary},
            {.label = "Config Updated", .text = "2026-11-20", .tone = Tone::primary}}));
    EXPECT_EQ(view->pills(),
        (std::vector<Pill>{{"Operational", Tone::green, "checkmark.circle.fill"}, {"TCP", Tone::secondary}}));
}

TEST_F(DetailOfAMonitor, WithNoURLIntervalOrConfigUpdateShowsADetailsGroupWithNoRows)
{
    EXPECT_EQ(opened()->details(), std::vector<Fact>{});
}

TEST_F(DetailOfAMonitor, WithNoLastCheckTimeHasNoLastCheckGroup)
{
    EXPECT_EQ(opened()->lastCheck(), Fact{});
}

TEST_F(DetailOfAMonitor, SaysTheDayAndTheTimeOfTheLastCheck)
{
    auto monitor = gateway();
    monitor.lastCheckTime = model::readISO8601("2026-11-20T09:30:00Z");
    EXPECT_EQ(opened(monitor)->lastCheck(), (Fact{.text = "2026-11-20", .caption = "09:30"}));
}

TEST_F(DetailOfAMonitor, AnIntervalOf300StaysInSecondsWithNoConversionToMinutes)
{
    auto monitor = gateway();
    monitor.intervalSeconds = 300;
    EXPECT_EQ(
        opened(monitor)->details(), (std::vector<Fact>{{.label = "Interval", .text = "300s", .tone = Tone::primary}}));
}

TEST_F(DetailOfAMonitor, AURLThatDoesNotParseLeavesTheRowOut)
{
    auto monitor = gateway();
    for (const auto* text : {"", "http://[", "a b", "%zz"}) {
        monitor.url = text;
        EXPECT_EQ(opened(monitor)->details(), std::vector<Fact>{}) << text;
    }
}

TEST_F(DetailOfAMonitor, OpensItsURLOnlyIfThatIsAWebAddress)
{
    auto monitor = gateway();
    for (const auto* text : {"file:///etc/passwd", "javascript:alert(1)", "mail.acme.example"}) {
        monitor.url = text;
        EXPECT_EQ(
            opened(monitor)->details(), (std::vector<Fact>{{.label = "URL", .text = text, .hasSmallLabel = true}}));
        view->openURL();
    }
    opened()->openURL();
    EXPECT_EQ(links.opened, Words{});
    monitor.url = "http://acme.example";
    opened(monitor)->openURL();
    EXPECT_EQ(links.opened, Words{"http://acme.example"});
}

TEST_F(DetailOfAMonitor, OffersToPauseWhatRunsAndToResumeWhatIsPaused)
{
    const ActionButton run{
        .id = "checkNow", .label = "Run Check", .symbol = "arrow.clockwise", .tone = Tone::blue, .isProminent = true};
    EXPECT_EQ(opened()->buttons(),
        (std::vector<ActionButton>{{.id = "pauseResume",
                                       .label = "Pause Monitor",
                                       .symbol = "pause.fill",
                                       .tone = Tone::orange,
                                       .isProminent = true},
            run}));
    auto paused = gateway();
    paused.isPaused = true;
    EXPECT_EQ(opened(paused)->buttons(),
        (std::vector<ActionButton>{{.id = "pauseResume",
                                       .label = "Resume Monitor",
                                       .symbol = "play.fill",
                                       .tone = Tone::green,
                                       .isProminent = true},
            run}));
}

TEST_F(DetailOfAMonitor, AfterASuccessfulPauseSaysResumeOnlyWhenTheRefetchedRecordSaysThatItIsPaused)
{
    transport.script(actionURL + "pause", 200, "");
    transport.script(listURL, 200, listOf(R"(, "state": "up")"));
    opened();
    press("pauseResume");
    EXPECT_EQ(view->buttons().front().label, "Pause Monitor");
    transport.script(listURL, 200, listOf(R"(, "enabled": false)"));
    press("pauseResume");
    EXPECT_EQ(view->buttons().front().label, "Resume Monitor");
    EXPECT_EQ(effects, (Words{"update of Gateway while busy", "update of Gateway while busy"}));
    EXPECT_FALSE(*view->action->isInProgress);
}

TEST_F(DetailOfAMonitor, ResumesWhatItsOwnCopySaysIsPaused)
{
    transport.script(actionURL + "pause", 200, "");
    transport.script(actionURL + "resume", 200, "");
    transport.script(listURL, 200, listOf(R"(, "enabled": false)"));
    opened();
    press("pauseResume");
    press("pauseResume");
    EXPECT_EQ(sent(),
        (Words{"POST /user/api/monitors/7/pause", "GET /user/api/v1/monitors", "POST /user/api/monitors/7/resume",
            "GET /user/api/v1/monitors"}));
}

TEST_F(DetailOfAMonitor, RunsACheckAndFetchesWithoutADelay)
{
    transport.script(actionURL + "run", 200, "");
    transport.script(listURL, 200, listOf(R"(, "status_page_id": "other", "state": "down")"));
    opened();
    press("checkNow");
    EXPECT_EQ(sent(), (Words{"POST /user/api/monitors/7/run", "GET /user/api/v1/monitors"}));
    EXPECT_EQ(view->pills().front().text, "Down") << "whatever page it is on by now";
}

TEST_F(DetailOfAMonitor, IfThePauseSucceedsAndTheRefetchFailsTheAlertAppearsAndTheScreenAndTheListKeepTheOldRecord)
{
    transport.script(actionURL + "pause", 200, "");
    transport.script(listURL, 500, "");
    opened();
    press("pauseResume");
    EXPECT_EQ(view->action->alert.words(), "Server returned HTTP status code 500.");
    EXPECT_EQ(*view->currentMonitor, gateway());
    EXPECT_EQ(effects, Words{});
    view->action->alert.dismiss();
    EXPECT_EQ(view->action->alert.words(), "");
}

TEST_F(DetailOfAMonitor, ThatNoLongerComesBackFromTheServiceStaysOnScreenUnchangedWithNoAlert)
{
    transport.script(actionURL + "pause", 200, "");
    transport.script(listURL, 200, R"([{"id": "1", "name": "Other"}])");
    opened();
    press("pauseResume");
    EXPECT_EQ(*view->currentMonitor, gateway());
    EXPECT_EQ(view->action->alert.words(), "");
    EXPECT_EQ(effects, Words{});
    EXPECT_FALSE(*view->action->isInProgress);
}

TEST_F(DetailOfAMonitor, PressedTwiceSendsOnceAndDisablesItsButtonsMeanwhile)
{
    opened()->press("checkNow");
    view->press("pauseResume");
    for (const auto& button : view->buttons()) EXPECT_FALSE(button.isEnabled);
    run();
    EXPECT_EQ(sent(), Words{"POST /user/api/monitors/7/run"});
}

TEST_F(DetailOfAMonitor, ClosedDuringAnActionIsFreedAfterIt)
{
    opened()->press("checkNow");
    run();
    const std::weak_ptr<MonitorDetailView> held = view;
    const auto action = view->action;
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(platform::HttpResponse{500, ""});
    run();
    EXPECT_TRUE(held.expired());
}

class RefusedInTheDetail : public DetailOfAMonitor,
                           public testing::WithParamInterface<std::tuple<const char*, fakes::Refusal>> {};

TEST_P(RefusedInTheDetail, IsAnAlertAndNothingIsFetched)
{
    const auto& [button, refusal] = GetParam();
    for (const auto* action : {"pause", "run"}) transport.script(actionURL + action, refusal.answer);
    opened();
    press(button);
    EXPECT_EQ(view->action->alert.words(), refusal.alert);
    EXPECT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(effects, Words{});
    EXPECT_FALSE(*view->action->isInProgress);
}

INSTANTIATE_TEST_SUITE_P(EachActionAndAnswer, RefusedInTheDetail,
    testing::Combine(testing::Values("pauseResume", "checkNow"), testing::ValuesIn(fakes::refusals())));

}  // namespace

}  // namespace larkspan::monitors
