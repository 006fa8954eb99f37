// Orders: what each screen of the program sends, under every fault. The service sees an order once or not at all, the
// person is told, and what was typed is still there after a failure.

#include <algorithm>

#include "Interruptions.h"
#include "stage/Row.h"

namespace larkspan::campaign {

namespace {

using Words = std::vector<std::string>;

void expectFailure(const std::string& sentence, const Words& typed, const Order& order, Words& failures)
{
    if (order.action->alert.words() != sentence)
        failures.push_back("The alert says \"" + order.action->alert.words() + "\" in place of \"" + sentence + "\".");
    if (order.typed() != typed) failures.emplace_back("What was typed is not there any more.");
}

void expectSuccess(const Order& order, std::size_t seen, Words& failures)
{
    if (!order.action->alert.words().empty())
        failures.push_back("The alert says \"" + order.action->alert.words() + "\" in place of nothing.");
    if (seen != 1) failures.push_back("The service has seen it " + std::to_string(seen) + " times.");
}

/// Whatever has failed, the next press sends the order once more; the service may refuse what it has done before.
void expectNextTry(Road& road, Desk& desk, const Order& order, Words& failures)
{
    road.mend();
    road.service().forgetReceived();
    order.give();
    if (!desk.run([&order] { return !*order.action->isInProgress; })) failures.emplace_back("The next try never ends.");
    const auto seen = road.writesSeen().size();
    if (seen != 1) failures.push_back("The service has seen the next try " + std::to_string(seen) + " times.");
    const auto words = order.action->alert.words();
    if (!words.empty() && !words.starts_with("Server returned HTTP status code 4"))
        failures.push_back("The next try ended with \"" + words + "\".");
}

Words played(const OrderKind& kind, const Fault& fault)
{
    Road road(fault);
    Desk desk(road);
    const auto order = kind.prepared(desk);
    const auto typed = order.typed();
    const auto sentence = fault.ending(kind.operation);
    road.service().forgetReceived();
    road.arm(Met::writes);
    Words failures;
    order.give();
    if (!desk.run([&order] { return !*order.action->isInProgress; })) return {"It is busy for ever."};

    const auto seen = road.writesSeen().size();
    if (seen > 1) failures.push_back("The service has seen it " + std::to_string(seen) + " times.");
    std::ranges::move(road.leaks(), std::back_inserter(failures));
    if (sentence.empty()) {
        expectSuccess(order, seen, failures);
    } else {
        expectFailure(sentence, typed, order, failures);
        expectNextTry(road, desk, order, failures);
    }
    return failures;
}

std::vector<Cell> cells()
{
    std::vector<Cell> all;
    for (const auto& kind : orderKinds()) {
        for (const auto& fault : faults())
            all.push_back({kind.operation.name + ": " + fault.name, [&kind, &fault] { return played(kind, fault); }});
    }
    std::ranges::move(interruptedOrders(), std::back_inserter(all));
    return all;
}

}  // namespace

}  // namespace larkspan::campaign

int main(int count, char** arguments)
{
    using namespace larkspan::campaign;
    return playRow(cells(), Selection(count, arguments, 61));
}
