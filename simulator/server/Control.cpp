#include "server/Control.h"

#include <array>
#include <functional>
#include <utility>

#include "account/PrefixedIds.h"
#include "account/Seed.h"
#include "server/EventOrders.h"

namespace larkspan::simulator {

namespace {

const Json& required(const Json& json, const char* key)
{
    const auto value = json.find(key);
    if (value == json.end()) throw BadOrder(std::string("\"") + key + "\" is missing.");
    return *value;
}

const std::string& requiredText(const Json& json, const char* key)
{
    const auto* text = required(json, key).get_ptr<const Json::string_t*>();
    if (!text) throw BadOrder(std::string("\"") + key + "\" is no text.");
    return *text;
}

PageHealth readHealth(const std::string& name)
{
    constexpr std::array<std::pair<std::string_view, PageHealth>, 4> healths{
        {{"operational", PageHealth::operational}, {"degraded", PageHealth::degraded},
            {"major-outage", PageHealth::majorOutage}, {"maintenance", PageHealth::maintenance}}};
    for (const auto& [known, health] : healths) {
        if (known == name) return health;
    }
    throw BadOrder("There is no health \"" + name + "\".");
}

void changePage(StatusPage& page, const Json& order)
{
    if (order.contains("health")) page.setHealth(readHealth(requiredText(order, "health")));
    if (order.contains("name")) page.name = requiredText(order, "name");
    if (order.contains("status")) page.status = requiredText(order, "status");
    if (order.contains("code"))
        page.overview = StatusPage::Overview{requiredText(order, "code"), requiredText(order, "label")};
}

Account readAccount(const Json& order, support::Time now)
{
    if (order.contains("seed")) {
        const auto size = seedSize(requiredText(order, "seed"));
        if (!size) throw BadOrder("There is no such seed.");
        auto account = seededAccount(*size, now);
        if (order.contains("id_prefix")) prefixIds(account, requiredText(order, "id_prefix"));
        return account;
    }
    const auto& list = required(order, "pages");
    if (!list.is_array()) throw BadOrder("\"pages\" is no list.");
    Account account;
    for (const auto& item : list) {
        StatusPage page;
        page.id = requiredText(item, "id");
        page.name = requiredText(item, "name");
        changePage(page, item);
        account.statusPages.push_back(std::move(page));
    }
    return account;
}

std::map<std::string, KeyRights, std::less<>> readKeys(const Json& order)
{
    if (!order.is_object()) throw BadOrder("Keys come as an object.");
    std::map<std::string, KeyRights, std::less<>> keys;
    for (const auto& [key, rights] : order.items()) {
        if (rights == Json("full")) {
            keys.emplace(key, KeyRights::full);
        } else if (rights == Json("none")) {
            keys.emplace(key, KeyRights::none);
        } else {
            throw BadOrder(R"(A key's rights are "full" or "none".)");
        }
    }
    return keys;
}

ResultShape readShape(const Json& order)
{
    const auto& name = requiredText(order, "shape");
    if (const auto shape = resultShape(name)) return *shape;
    throw BadOrder("There is no shape \"" + name + "\".");
}

Json wireRequests(const std::vector<Request>& requests)
{
    auto list = Json::array();
    for (const auto& request : requests) {
        auto headers = Json::object();
        for (const auto& [name, value] : request.headers) headers[name] = value;
        list.push_back(Json::object({{"method", request.method}, {"target", request.target},
            {"headers", std::move(headers)}, {"body", request.body}}));
    }
    return list;
}

const Answer done{204};

}  // namespace

Control::Control(Service& service, ServerCertificates& certificates)
{
    const auto order = [](const Call& call) { return parsedJson(call.request.body); };

    router_.add("POST", "/simulator/faults", [&service, order](const Call& call) {
        service.inject(readFaultRule(order(call)));
        return done;
    });
    router_.add("DELETE", "/simulator/faults", [&service](const Call&) {
        service.clearFaults();
        return done;
    });
    router_.add("GET", "/simulator/requests",
        [&service](const Call&) { return Answer{200, wireRequests(service.received())}; });
    router_.add("DELETE", "/simulator/requests", [&service](const Call&) {
        service.forgetReceived();
        return done;
    });
    router_.add("PUT", "/simulator/pages", [&service, order](const Call& call) {
        auto fresh = readAccount(order(call), service.now());
        service.withAccount([&fresh](Account& account) {
            fresh.keys = std::move(account.keys);
            account = std::move(fresh);
        });
        return done;
    });
    router_.add("PATCH", "/simulator/pages/*", [&service, order](const Call& call) {
        const auto change = order(call);
        service.withAccount([&](Account& account) {
            auto* page = account.findPage(call.wildcards.front());
            if (!page) throw BadOrder("There is no such page.");
            changePage(*page, change);
        });
        return done;
    });
    router_.add("PUT", "/simulator/keys", [&service, order](const Call& call) {
        auto keys = readKeys(order(call));
        service.withAccount([&keys](Account& account) { account.keys = std::move(keys); });
        return done;
    });
    router_.add("PUT", "/simulator/shape", [&service, order](const Call& call) {
        service.setShape(readShape(order(call)));
        return done;
    });
    router_.add("PUT", "/simulator/certificate", [&certificates, order](const Call& call) {
        const auto kind = certificateKind(requiredText(order(call), "certificate"));
        if (!kind) throw BadOrder("There is no such certificate.");
        certificates.use(*kind);
        return done;
    });
    addEventOrders(router_, service);
}

Reply Control::answer(const Request& request)
{
    Answer answer;
    try {
        Account none;
        answer = router_.route(request, none, {});
    } catch (const std::exception& error) {
        answer = {400, Json::object({{"error", error.what()}})};
    }
    Reply reply;
    reply.status = answer.status;
    reply.headers = std::move(answer.headers);
    if (answer.result) reply.body = textOf(*answer.result);
    return reply;
}

}  // namespace larkspan::simulator
