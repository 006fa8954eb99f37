#include "server/EventOrders.h"

#include <algorithm>

#include "account/IncidentWorkflow.h"
#include "account/MaintenanceCalendar.h"
#include "server/FaultReader.h"
#include "service/RequestBody.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

using Step = void (*)(Account&, Incident&, support::Time);

Step stepTo(const std::string& status)
{
    if (status == "active") return reopen;
    if (status == "acknowledged") return acknowledge;
    if (status == "resolved") return resolve;
    throw BadOrder("No incident is \"" + status + "\".");
}

/// Moves the dates so that they give the same status.
void bringTo(Maintenance& maintenance, const std::string& status, support::Time now)
{
    if (status == "scheduled") {
        maintenance.startAt = now + 1h;
        maintenance.endAt = now + 2h;
    } else if (status == "in_progress") {
        maintenance.startAt = now;
        maintenance.endAt = now + 1h;
    } else if (status == "completed") {
        maintenance.startAt = std::min(maintenance.startAt.value_or(now), now);
        maintenance.endAt = now;
    } else {
        throw BadOrder("No maintenance is \"" + status + "\".");
    }
}

std::string knownPage(Account& account, const std::string& id)
{
    if (!account.findPage(id)) throw BadOrder("There is no such page.");
    return id;
}

Json open(Account& account, const RequestBody& order, support::Time now)
{
    Incident draft;
    draft.title = order.requiredText("title");
    draft.message = order.text("message");
    draft.severityName = order.text("severity").value_or("major");
    if (const auto page = order.text("page")) draft.statusPageId = knownPage(account, *page);
    const auto step = stepTo(order.text("status").value_or("active"));

    auto& incident = openIncident(account, std::move(draft), now);
    step(account, incident, now);
    return Json::object({{"id", incident.id}});
}

void changeIncident(Account& account, const std::string& id, const RequestBody& order, support::Time now)
{
    auto* incident = account.findIncident(id);
    if (!incident) throw BadOrder("There is no such incident.");
    const auto message = order.text("message");
    if (const auto status = order.text("status")) stepTo (*status)(account, *incident, now);
    if (message) appendUpdate(*incident, *message, now);
}

Json plan(Account& account, const RequestBody& order, support::Time now)
{
    Maintenance draft;
    draft.title = order.requiredText("title");
    draft.message = order.text("message");
    draft.statusPageId = knownPage(account, order.requiredText("page"));
    bringTo(draft, order.text("status").value_or("scheduled"), now);
    return Json::object({{"id", schedule(account, std::move(draft), now).id}});
}

void changeMaintenance(Account& account, const std::string& id, const RequestBody& order, support::Time now)
{
    auto* maintenance = account.findMaintenance(id);
    if (!maintenance) throw BadOrder("There is no such maintenance.");
    bringTo(*maintenance, order.requiredText("status"), now);
    amended(account, *maintenance, now);
}

std::vector<IncidentState> readStates(const RequestBody& order)
{
    std::vector<IncidentState> states;
    for (auto& stage : order.requiredTexts("stages")) {
        const auto number = static_cast<int>(states.size()) + 1;
        states.push_back({number, std::move(stage), number});
    }
    if (states.empty()) throw BadOrder("An account has at least one stage.");
    return states;
}

/// The handler of orders that add a record to the account and answer with its id.
Handler adding(Service& service, Json (*add)(Account&, const RequestBody&, support::Time))
{
    return [&service, add](const Call& call) {
        Answer answer{201};
        const RequestBody order(call.request);
        service.withAccount([&](Account& account) { answer.result = add(account, order, service.now()); });
        return answer;
    };
}

/// The handler of orders that change the record with the id in the path.
Handler changing(Service& service, void (*apply)(Account&, const std::string&, const RequestBody&, support::Time))
{
    return [&service, apply](const Call& call) {
        const RequestBody order(call.request);
        const auto& id = call.wildcards.front();
        service.withAccount([&](Account& account) { apply(account, id, order, service.now()); });
        return Answer{204};
    };
}

}  // namespace

void addEventOrders(Router& router, Service& service)
{
    router.add("POST", "/simulator/incidents", adding(service, open));
    router.add("PATCH", "/simulator/incidents/*", changing(service, changeIncident));
    router.add("PUT", "/simulator/incident-states", [&service](const Call& call) {
        auto states = readStates(RequestBody(call.request));
        service.withAccount([&states](Account& account) { account.incidentStates = std::move(states); });
        return Answer{204};
    });
    router.add("POST", "/simulator/maintenances", adding(service, plan));
    router.add("PATCH", "/simulator/maintenances/*", changing(service, changeMaintenance));
}

}  // namespace larkspan::simulator
