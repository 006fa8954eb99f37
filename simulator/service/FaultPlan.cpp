#include "service/FaultPlan.h"

#include <utility>

namespace larkspan::simulator {

void FaultPlan::add(FaultRule rule)
{
    if (!rule.times || *rule.times > 0) rules_.push_back(std::move(rule));
}

std::vector<Fault> FaultPlan::take(const Request& request)
{
    std::vector<Fault> faults;
    std::erase_if(rules_, [&](FaultRule& rule) {
        if (!rule.path.empty() && rule.path != request.path()) return false;
        if (!rule.method.empty() && rule.method != request.method) return false;
        faults.push_back(rule.fault);
        return rule.times && --*rule.times == 0;
    });
    return faults;
}

}  // namespace larkspan::simulator
