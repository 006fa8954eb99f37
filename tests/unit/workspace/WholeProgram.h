#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <utility>

#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/PageComponents.h"
#include "fakes/PolledAccount.h"
#include "support/AfterChanges.h"
#include "workspace/DashboardView.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan::workspace {

using platform::URLError;
using Components = fakes::PageComponents;
using Tab = StatusPageDetailView::Tab;

inline const std::string serviceURL = "https://service.example/user/api/";

/// The failure of the request that a task is about; none if it succeeds.
using Failure = std::optional<platform::HttpTransport::Result>;

/// Looks at a screen as a bridge does: after its changes, for as long as it is shown.
class Look {
public:
    template <typename Screen>
    Look(platform::Executor& main, std::shared_ptr<Screen> screen, int& looks)
        : changes_(support::ScreenUpdates(main), [screen, &looks] {
            if constexpr (requires { screen->rows(); }) screen->rows();
            if constexpr (requires { screen->buttons(); }) screen->buttons();
            ++looks;
        })
    {
        const auto observer = [this] { changes_.announce(); };
        if constexpr (requires { screen->observe(observer); }) {
            subscriptions_ = screen->observe(observer);
        } else {
            subscriptions_ = {screen->objectWillChange(observer)};
        }
    }

private:
    const support::AfterChanges changes_;
    support::Subscriptions subscriptions_;
};

/// A program whose account has the page "p" with one record of each kind.
class Program : public fakes::PolledAccount {
public:
    explicit Program(Failure failure)
        : failure_(std::move(failure))
    {
        servePages({"p"}, {{"p", "operational"}});
        serve("v1/incidents?status_page_id=p", "[" + incidentRecord + "]");
        serve("v1/incidents/7", incidentRecord);
        serve("v1/maintenances", "[" + workRecord + "]");
        serve("v1/maintenances/7", workRecord);
        serve("v1/monitors", "[" + monitorRecord + "]");
        serve("components?status_page_id=p", Components::componentsBody);
        serve("component-groups?status_page_id=p", Components::groupsBody);
        serve("monitors?component_ids=api", Components::apiMonitorsBody);
        serve("incident-states", R"({"incident_states": [{"id": 9, "stage": "Resolved", "sort_order": 1}]})");
        refresh();
    }

    void serve(const std::string& path, const std::string& body)
    {
        transport.script(serviceURL + path, 200, body);
        served_.insert(path);
    }

    /// The request for `path` gets the answer that the test is about, with this body if it succeeds.
    void order(const std::string& path, const std::string& body)
    {
        serve(path, body);
        ordered_[path] = body;
        if (failure_) transport.script(serviceURL + path, *failure_);
    }

    /// From now on the request that the test is about succeeds.
    void mend()
    {
        for (const auto& [path, body] : ordered_) serve(path, body);
    }

    /// From now on each request fails.
    void failAll()
    {
        for (const auto& path : served_) transport.script(serviceURL + path, 500, "");
    }

    std::shared_ptr<StatusPageDetailView> page()
    {
        if (!dashboard->openedPage.isOpen()) dashboard->openPage("p");
        return dashboard->openedPage.screen();
    }

    /// The page with this tab, whose list has been fetched.
    std::shared_ptr<StatusPageDetailView> loaded(Tab tab)
    {
        page()->select(tab);
        run();
        return page();
    }

    /// The next turn of a thread; false if there is nothing to do.
    bool turn() { return main.runOne() || client.runOne(); }

    std::size_t orders() const
    {
        return static_cast<std::size_t>(
            std::ranges::count_if(transport.requests, [](const auto& request) { return request.method != "GET"; }));
    }

    static inline const std::string incidentRecord
        = R"({"id": "7", "title": "Outage", "created_at": "2026-11-20T07:00:00Z", "status_page_id": "p"})";
    static inline const std::string workRecord
        = R"({"id": "7", "title": "Upgrade", "status_page_id": "p", "start_at": "2026-11-20T10:00:00Z",
              "end_at": "2026-11-20T12:00:00Z"})";
    static inline const std::string monitorRecord
        = R"({"id": "1", "name": "Ping", "type": "http", "state": "up", "status_page_id": "p"})";
    static inline const std::string componentRecord = R"({"id": "api", "name": "API"})";

    api::APIKeyStore keys{client, credentials};
    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    std::shared_ptr<DashboardView> dashboard = std::make_shared<DashboardView>(
        DashboardView::Ports{main, timers, clock, credentials, keys, state, locale, links, api});

private:
    const Failure failure_;
    std::set<std::string> served_;
    std::map<std::string, std::string> ordered_;
};

}  // namespace larkspan::workspace
