// Measures how long the largest answers that the client accepts block the main thread: the longest single turn of its
// event loop while as many records as an answer may contain, of as many bytes, arrive for the first time, arrive in
// another order, change all at once, and are replaced by others; for the account's cycle with the panel's menu, for the
// overview of a page that all events are about, and for each list of a page.
//
// usage: larkspan-bench-largest            prints milliseconds
//        larkspan-bench-largest each       prints them for each of these
//        larkspan-bench-largest incidents  prints them for one

#include <algorithm>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Window.h"
#include "adapters/http/TransportSettings.h"
#include "model/json/JSONValue.h"
#include "workspace/StatusPageDetailView.h"

namespace {

using namespace larkspan;
using Tab = workspace::StatusPageDetailView::Tab;

constexpr auto most = model::JSONReading::mostRecords;
const std::string page = "100000";

/// One state of a list.
struct Answer {
    /// Every `step`-th record is first.
    std::size_t step;
    std::size_t firstId;
    std::string_view word;
};

constexpr Answer answers[]{{1, 0, "a"}, {2, 0, "a"}, {2, 0, "b"}, {1, most, "b"}};

/// A list of records with this text at `key`, each with `rest` in addition.
std::string list(const Answer& answer, const std::string& key, const std::string& rest)
{
    const std::string start = R"({"id":")";
    const std::string middle = R"(",")" + key + R"(":")" + std::string(answer.word);
    const std::string end = "\"" + rest + "},";
    const auto size = adapters::largestAcceptedBody / most - 1;
    const std::string filling(size - start.size() - 6 - middle.size() - end.size(), 'x');
    std::string body = "[";
    body.reserve(adapters::largestAcceptedBody);
    for (std::size_t first = 0; first < answer.step; ++first) {
        for (auto number = first; number < most; number += answer.step) {
            body += start + std::to_string(100'000 + answer.firstId + number) + middle + filling + end;
        }
    }
    body.back() = ']';
    return body;
}

/// Gives each page this state.
std::string overview(std::size_t firstId, const std::string& code)
{
    std::string body = R"({"status_pages":[)";
    for (std::size_t number = 0; number < most; ++number) {
        body += R"({"id":")" + std::to_string(100'000 + firstId + number) + R"(","name":"n","status":{"code":")" + code
            + R"(","label":"l"}},)";
    }
    body.back() = ']';
    return body + '}';
}

const std::string incident
    = R"(,"status":"active","created_at":"2026-03-01T10:00:00Z","severity_name":"major","status_page_id":")" + page
    + '"';
const std::string work = R"(,"status":"in_progress","start_at":"2026-03-01T10:00:00Z","status_page_id":")" + page + '"';
const std::string monitor = R"(,"type":"http","state":"up","status_page_id":")" + page + '"';

/// The longest turn in milliseconds while `prepare` changes the answers and `look` shows them.
double longestTurn(
    bench::Window& window, const std::function<void(const Answer& answer)>& prepare, const std::function<void()>& look)
{
    double longest = 0;
    for (const auto& answer : answers) {
        prepare(answer);
        window.main().restart();
        look();
        window.settle();
        longest = std::max(longest, window.main().longest());
    }
    return longest;
}

/// The answer for the list of one page is at the path with its id.
const std::string ofPage = "?status_page_id=" + page;

double cycle()
{
    bench::Window window({});
    auto& client = window.client();
    return longestTurn(
        window,
        [&](const Answer& answer) {
            client.prepare("v1/status-pages", list(answer, "name", ""));
            client.prepare(
                "status-pages/status", overview(answer.firstId, answer.word == "a" ? "operational" : "major-outage"));
            client.prepare("v1/incidents", list(answer, "title", incident));
            client.prepare("v1/maintenances", list(answer, "title", work));
        },
        [&] { client.state().refreshNow(); });
}

/// With `tab` of the page open.
double opened(Tab tab, const std::function<void(bench::Client& client, const Answer& answer)>& prepare)
{
    bench::Window window({});
    auto& client = window.client();
    client.prepare("v1/status-pages", R"([{"id":")" + page + R"(","name":"n"}])");
    window.refresh();
    window.dashboard().openPage(page);
    window.settle();
    auto& screen = *window.dashboard().openedPage.screen();
    screen.select(tab);
    window.settle();
    return longestTurn(window, [&](const Answer& answer) { prepare(client, answer); }, [&] { screen.refresh(); });
}

double overviewTab()
{
    return opened(Tab::overview, [](bench::Client& client, const Answer& answer) {
        client.prepare("v1/incidents", list(answer, "title", incident));
        client.prepare("v1/maintenances", list(answer, "title", work));
    });
}

double incidentsTab()
{
    return opened(Tab::incidents, [](bench::Client& client, const Answer& answer) {
        client.prepare("v1/incidents" + ofPage, list(answer, "title", incident));
    });
}

double monitorsTab()
{
    return opened(Tab::monitors, [](bench::Client& client, const Answer& answer) {
        client.prepare("v1/monitors", list(answer, "name", monitor));
    });
}

double componentsTab()
{
    return opened(Tab::components, [](bench::Client& client, const Answer& answer) {
        client.prepare("components" + ofPage, list(answer, "name", ""));
        client.prepare("component-groups" + ofPage, "[]");
    });
}

double maintenancesTab()
{
    return opened(Tab::maintenances, [](bench::Client& client, const Answer& answer) {
        client.prepare("v1/maintenances", list(answer, "title", work));
    });
}

struct Measurement {
    const char* name;
    double (*milliseconds)();
};

constexpr Measurement measurements[] = {{"cycle", &cycle}, {"overview", &overviewTab}, {"incidents", &incidentsTab},
    {"monitors", &monitorsTab}, {"components", &componentsTab}, {"maintenances", &maintenancesTab}};

}  // namespace

int main(int argc, char** argv)
{
    try {
        double longest = 0;
        for (const auto& each : measurements) {
            if (argc > 1 && std::string_view(argv[1]) != "each" && std::string_view(argv[1]) != each.name) continue;
            const auto milliseconds = each.milliseconds();
            if (argc > 1) std::printf("%s %.1f\n", each.name, milliseconds);
            longest = std::max(longest, milliseconds);
        }
        if (argc == 1) std::printf("%.4f\n", longest);
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-largest: %s\n", error.what());
        return 1;
    }
}
