#include "stage/Road.h"

#include <algorithm>

#include "account/Seed.h"
#include "service/WallClock.h"
#include "stage/Client.h"

namespace larkspan::campaign {

namespace {

const simulator::Account& account()
{
    static const auto made = [] {
        auto seeded = simulator::seededAccount(12, simulator::wallClock().now());
        seeded.keys.emplace(key, simulator::KeyRights::full);
        return seeded;
    }();
    return made;
}

std::unique_ptr<Origin> originOf(simulator::Service& service, const OtherOrigins& others, const Fault& fault)
{
    if (fault.simulated || fault.certificate) return simulatedOrigin(service, fault);
    return rawOrigin(service, others, fault);
}

}  // namespace

Road::Road(const Fault& fault)
    : service_(account())
    , subjects_(Subjects::of(account()))
    , others_(std::make_unique<OtherOrigins>())
    , origin_(originOf(service_, *others_, fault))
{
}

Road::~Road() = default;

int Road::port() const
{
    return origin_->port();
}

void Road::arm(Met met)
{
    origin_->arm(met);
}

void Road::mend()
{
    origin_->mend();
}

std::vector<simulator::Request> Road::writesSeen() const
{
    auto writes = service_.received();
    std::erase_if(writes, [](const simulator::Request& request) { return request.method == "GET"; });
    return writes;
}

std::vector<std::string> Road::leaks() const
{
    std::vector<std::string> found;
    if (const auto visits = others_->visits(); visits > 0)
        found.push_back("Another origin was visited " + std::to_string(visits) + " times.");
    for (const auto& text : origin_->textsWithoutKey()) {
        if (text.find(key) != std::string::npos) found.push_back("The key stands in \"" + text + "\".");
    }
    if (origin_->mostArrivals() > 1)
        found.push_back("A write arrived " + std::to_string(origin_->mostArrivals()) + " times.");
    return found;
}

}  // namespace larkspan::campaign
