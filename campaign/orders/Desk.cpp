#include "Desk.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace larkspan::campaign {

using namespace std::chrono_literals;

namespace {

template <typename Result>
support::Task<void> fetchInto(Result* result, support::Task<Result> fetching)
{
    *result = co_await std::move(fetching);
}

template <typename Record, typename Matches>
Record firstOf(const std::vector<Record>& records, Matches matches)
{
    const auto found = std::ranges::find_if(records, matches);
    if (found == records.end()) throw std::runtime_error("the account has no such record");
    return *found;
}

}  // namespace

Desk::Desk(Road& road)
    : client(road.port())
    , road_(road)
{
}

Desk::~Desk()
{
    if (!hasQuit_) quit();
}

bool Desk::run(const std::function<bool()>& isDone)
{
    const auto end = std::chrono::steady_clock::now() + 20s;
    while (std::chrono::steady_clock::now() < end) {
        main.run();
        if (isDone()) return true;
        std::this_thread::sleep_for(1ms);
    }
    return false;
}

void Desk::quit()
{
    hasQuit_ = true;
    client.stop();
    main.drop();
}

template <typename Result>
Result Desk::fetched(support::Task<Result> fetching)
{
    Result result;
    const auto failure = client.run(fetchInto(&result, std::move(fetching)));
    if (!failure.empty()) throw std::runtime_error(failure);
    return result;
}

model::Incident Desk::incident()
{
    return firstOf(fetched(client.api().fetchIncidents()),
        [this](const model::Incident& incident) { return incident.id == subjects().incident; });
}

model::Maintenance Desk::maintenance(const std::string& status)
{
    return firstOf(fetched(client.api().fetchMaintenances()),
        [&status](const model::Maintenance& maintenance) { return maintenance.status == status; });
}

model::Component Desk::component()
{
    return firstOf(fetched(client.api().fetchComponents(subjects().page)),
        [this](const model::Component& component) { return component.id == subjects().component; });
}

model::Monitor Desk::monitor(const std::string& id)
{
    return firstOf(
        fetched(client.api().fetchMonitors()), [&id](const model::Monitor& monitor) { return monitor.id == id; });
}

}  // namespace larkspan::campaign
