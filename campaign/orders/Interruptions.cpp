#include "Interruptions.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "api/APIKeyStore.h"
#include "model/records/Team.h"

namespace larkspan::campaign {

using namespace std::chrono_literals;

namespace {

using Words = std::vector<std::string>;

const std::string otherKey = "other-key-51b0e2";

/// What happens while an order is under way; appends what is not as promised.
struct Interruption {
    std::string name;
    std::function<void(Road&, Desk&, Order&, Words& failures)> happens;
};

void expectToEnd(Desk& desk, const Order& order, Words& failures)
{
    if (!desk.run([&order] { return !*order.action->isInProgress; })) failures.emplace_back("It is busy for ever.");
}

/// The person leaves; the order goes on without a screen, and nothing keeps that in the end.
void windowCloses(Road&, Desk& desk, Order& order, Words& failures)
{
    const std::weak_ptr screen = order.screen;
    order.close();
    order.screen.reset();
    order.give = {};
    expectToEnd(desk, order, failures);
    if (!desk.run([&screen] { return screen.expired(); })) failures.emplace_back("The screen is kept for ever.");
}

void expectNextRequest(Road& road, Desk& desk, const std::string& sentence, const std::string& usedKey, Words& failures)
{
    road.mend();
    road.service().forgetReceived();
    const auto failure = desk.client.run(withoutResult(desk.client.api().fetchTeams()));
    if (failure != sentence) failures.push_back("The next request ended with \"" + failure + "\".");
    for (const auto& request : road.service().received()) {
        if (request.header("X-API-Key") != usedKey || request.header("Authorization") != "Bearer " + usedKey)
            failures.emplace_back("The next request had another key.");
    }
}

void keyChanges(Road& road, Desk& desk, Order& order, Words& failures)
{
    road.service().withAccount(
        [](simulator::Account& account) { account.keys.emplace(otherKey, simulator::KeyRights::full); });
    api::APIKeyStore keys(desk.client.loop(), desk.client.store());
    static_cast<void>(desk.client.run(withoutResult(keys.saveAPIKey(otherKey))));
    expectToEnd(desk, order, failures);
    for (const auto& write : road.writesSeen()) {
        const auto used = write.header("X-API-Key").value_or("");
        if (write.header("Authorization") != "Bearer " + std::string(used) || (used != key && used != otherKey))
            failures.emplace_back("The order went out with half a key.");
    }
    expectNextRequest(road, desk, "", otherKey, failures);
}

void keyGoes(Road& road, Desk& desk, Order& order, Words& failures)
{
    api::APIKeyStore keys(desk.client.loop(), desk.client.store());
    static_cast<void>(desk.client.run(keys.deleteAPIKey()));
    expectToEnd(desk, order, failures);
    expectNextRequest(road, desk, "API key is missing.", "", failures);
    if (!road.service().received().empty()) failures.emplace_back("A request went out without a key.");
}

void programQuits(Road&, Desk& desk, Order& order, Words& failures)
{
    const std::weak_ptr screen = order.screen;
    const auto began = std::chrono::steady_clock::now();
    order = {};
    desk.quit();
    if (std::chrono::steady_clock::now() - began > 2s) failures.emplace_back("It took long to quit.");
    if (!screen.expired()) failures.emplace_back("The screen outlives the program.");
}

/// Both are the same press to an impatient hand.
void pressedAgain(Road&, Desk& desk, Order& order, Words& failures)
{
    for (int press = 0; press < 2 && *order.action->isInProgress; ++press) order.give();
    expectToEnd(desk, order, failures);
}

const std::vector<Interruption>& interruptions()
{
    static const std::vector<Interruption> all{{"the window closes", windowCloses}, {"the key changes", keyChanges},
        {"the key goes", keyGoes}, {"the program quits", programQuits}, {"it is pressed again", pressedAgain}};
    return all;
}

/// How far the order has come by then.
struct Moment {
    std::string name;
    std::function<void(Road&, Desk&)> await;
};

const std::vector<Moment>& moments()
{
    static const std::vector<Moment> all{
        {"at once", [](Road&, Desk&) {}},
        {"on the way", [](Road&, Desk& desk) { desk.main.run(); }},
        {"when the service has it",
            [](Road& road, Desk& desk) {
                const auto end = std::chrono::steady_clock::now() + 300ms;
                desk.run([&] { return !road.writesSeen().empty() || std::chrono::steady_clock::now() > end; });
            }},
    };
    return all;
}

Words played(const OrderKind& kind, const Fault& fault, const Moment& moment, const Interruption& interruption)
{
    Road road(fault);
    Desk desk(road);
    auto order = kind.prepared(desk);
    road.service().forgetReceived();
    road.arm(Met::writes);
    Words failures;
    order.give();
    moment.await(road, desk);
    interruption.happens(road, desk, order, failures);
    // What a server has in hand may still reach the service.
    std::this_thread::sleep_for(5ms);
    if (road.writesSeen().size() > 1) failures.emplace_back("The service has seen the order more than once.");
    std::ranges::move(road.leaks(), std::back_inserter(failures));
    return failures;
}

bool isPlayed(const Fault& fault)
{
    static const Words names{"refused", "silence before the first byte", "silence in place of TLS", "reset in the body",
        "closed before the first byte, on a kept connection, once", "redirect 307 to a path", "status 503",
        "simulated short delay", "two answers at once"};
    return std::ranges::find(names, fault.name) != names.end();
}

}  // namespace

std::vector<Cell> interruptedOrders()
{
    std::vector<Cell> all;
    for (const auto& kind : orderKinds()) {
        for (const auto& fault : faults()) {
            if (!isPlayed(fault)) continue;
            for (const auto& moment : moments()) {
                for (const auto& interruption : interruptions()) {
                    all.push_back(
                        {kind.operation.name + ": " + fault.name + ", and " + interruption.name + " " + moment.name,
                            [&] { return played(kind, fault, moment, interruption); }});
                }
            }
        }
    }
    return all;
}

}  // namespace larkspan::campaign
