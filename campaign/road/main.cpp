// Faults of the road: every operation of the client under every fault. Each ends with the sentence of the client's
// table of failures, the client's next request works, and the key reaches no other place.

#include <algorithm>
#include <thread>

#include "FieldFaults.h"
#include "model/records/StatusPage.h"
#include "stage/Client.h"
#include "stage/Road.h"
#include "stage/Row.h"

namespace larkspan::campaign {

namespace {

using Names = std::vector<std::string>;

support::Task<void> fetchNames(api::KestruneAPI* api, Names* names)
{
    auto fetching = api->fetchStatusPages();
    const auto pages = co_await std::move(fetching);
    for (const auto& page : pages) names->push_back(page.name);
}

Names namesOf(simulator::Service& service)
{
    Names names;
    service.withAccount([&names](simulator::Account& account) {
        for (const auto& page : account.statusPages) names.push_back(page.name);
    });
    return names;
}

/// The client's next request has its own answer.
void expectNextRequest(Client& client, Road& road, Names& failures)
{
    Names names;
    const auto sentence = client.run(fetchNames(&client.api(), &names));
    if (!sentence.empty())
        failures.push_back("The next request ended with \"" + sentence + "\".");
    else if (names != namesOf(road.service()))
        failures.push_back("The next request got another answer, of " + std::to_string(names.size()) + " pages.");
}

std::string quoted(const std::string& sentence)
{
    return sentence.empty() ? "success" : '"' + sentence + '"';
}

Names played(const Operation& operation, const Fault& fault)
{
    Road road(fault);
    Client client(road.port());
    Names failures;
    if (fault.isOnKeptConnection) expectNextRequest(client, road, failures);

    road.arm(operation.isWrite() ? Met::writes : Met::reads);
    const auto sentence = client.run(operation.run(client.api(), road.subjects()));
    const auto expected = fault.ending(operation);
    if (sentence != expected)
        failures.push_back("It ended with " + quoted(sentence) + " in place of " + quoted(expected) + ".");
    if (sentence.find(key) != std::string::npos) failures.push_back("The sentence has the key.");
    std::this_thread::sleep_for(fault.afterwards);

    road.mend();
    expectNextRequest(client, road, failures);
    if (road.writesSeen().size() > 1)
        failures.push_back("The service has seen " + std::to_string(road.writesSeen().size()) + " writes.");
    std::ranges::move(road.leaks(), std::back_inserter(failures));
    return failures;
}

std::vector<Cell> cells()
{
    std::vector<Cell> all;
    const auto add = [&all](const Operation& operation, const Fault& fault) {
        all.push_back({operation.name + ": " + fault.name, [&operation, fault] { return played(operation, fault); }});
    };
    for (const auto& operation : operations()) {
        for (const auto& fault : faults()) add(operation, fault);
        for (const auto& fault : fieldFaults(operation)) add(operation, fault);
    }
    return all;
}

}  // namespace

}  // namespace larkspan::campaign

int main(int count, char** arguments)
{
    using namespace larkspan::campaign;
    return playRow(cells(), Selection(count, arguments, 71));
}
