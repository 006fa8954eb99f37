#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "Client.h"
#include "TimedExecutor.h"
#include "adapters/QtLocaleText.h"
#include "adapters/StatusItems.h"
#include "adapters/tray/DBusMenuModel.h"
#include "bridge/menu/StatusMenuBridge.h"
#include "bridge/workspace/DashboardBridge.h"
#include "fakes/FakeLinkOpener.h"
#include "workspace/DashboardView.h"

namespace larkspan::bench {

/// The panel's menu as hosts are told of it.
class Panel final : public platform::StatusItem {
public:
    bool isShown() const override { return true; }
    void onShownChanged(std::function<void()>) override {}
    void show(std::function<void(const platform::MenuRow& row)>) override {}
    void setButton(const Button&) override {}
    void setMenu(const std::vector<platform::MenuRow>& rows) override { model_.setRows(rows); }

private:
    adapters::DBusMenuModel model_;
};

/// The dashboard of a window over `account`, with the panel's menu and the window's, and two threads whose turns are
/// timed.
class Window {
public:
    explicit Window(simulator::Account account)
        : client_(std::move(account), main_, worker_, &items_)
    {
    }

    /// A whole refresh cycle.
    void refresh()
    {
        client_.state().refreshNow();
        settle();
    }

    /// Runs everything that waits.
    void settle()
    {
        while (main_.turn() | worker_.turn()) {}
    }

    TimedExecutor& main() { return main_; }
    TimedExecutor& worker() { return worker_; }
    Client& client() { return client_; }
    workspace::DashboardView& dashboard() { return *dashboard_; }

private:
    TimedExecutor main_;
    TimedExecutor worker_;
    Panel panel_;
    bridge::StatusMenuBridge menu_{[] {}};
    adapters::StatusItems items_{{panel_, menu_}};
    Client client_;
    api::APIKeyStore keys_{worker_, client_.store()};
    adapters::QtLocaleText locale_;
    fakes::FakeLinkOpener links_;
    std::shared_ptr<workspace::DashboardView> dashboard_
        = std::make_shared<workspace::DashboardView>(workspace::DashboardView::Ports{main_, client_.timers(),
            client_.clock(), client_.store(), keys_, client_.sharedState(), locale_, links_, client_.api()});
    support::ScreenUpdates updates_{main_};
    bridge::DashboardBridge bridge_{dashboard_, updates_};
};

}  // namespace larkspan::bench
