#pragma once

#include <memory>
#include <utility>

#include "Client.h"
#include "TimedExecutor.h"
#include "bridge/workspace/DashboardBridge.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "workspace/DashboardView.h"

namespace larkspan::bench {

/// The dashboard of a window over `account`, with two threads whose turns are timed.
class Window {
public:
    explicit Window(simulator::Account account)
        : client_(std::move(account), main_, worker_)
    {
    }

    /// A whole refresh cycle.
    void refresh()
    {
        client_.state().refreshNow();
        while (main_.turn() | worker_.turn()) {}
    }

    TimedExecutor& main() { return main_; }
    TimedExecutor& worker() { return worker_; }
    Client& client() { return client_; }

private:
    TimedExecutor main_;
    TimedExecutor worker_;
    Client client_;
    api::APIKeyStore keys_{worker_, client_.store()};
    fakes::FakeLocaleText locale_;
    fakes::FakeLinkOpener links_;
    std::shared_ptr<workspace::DashboardView> dashboard_
        = std::make_shared<workspace::DashboardView>(workspace::DashboardView::Ports{main_, client_.timers(),
            client_.clock(), client_.store(), keys_, client_.sharedState(), locale_, links_, client_.api()});
    support::ScreenUpdates updates_{main_};
    bridge::DashboardBridge bridge_{dashboard_, updates_};
};

}  // namespace larkspan::bench
