#pragma once

#include <functional>
#include <string>
#include <vector>

#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/ManualExecutor.h"
#include "model/records/Component.h"
#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "model/records/Monitor.h"
#include "stage/Client.h"
#include "stage/Road.h"

namespace larkspan::campaign {

/// Where a person gives orders: the program's screens, over its client and its real transport.
class Desk {
public:
    explicit Desk(Road& road);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Runs the screens' tasks until `isDone`; returns false if that takes too long.
    bool run(const std::function<bool()>& isDone);

    /// Ends everything in the program's order, with what is under way.
    void quit();

    // Records of the account, as the program's lists have them.
    model::Incident incident();
    model::Maintenance maintenance(const std::string& status);
    model::Component component();
    model::Monitor monitor(const std::string& id);

    const Subjects& subjects() const { return road_.subjects(); }

    Client client;
    fakes::ManualExecutor main;
    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;

private:
    template <typename Result>
    Result fetched(support::Task<Result> fetching);

    Road& road_;
    bool hasQuit_ = false;
};

}  // namespace larkspan::campaign
