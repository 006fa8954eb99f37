#pragma once

#include <optional>
#include <string>
#include <vector>

#include "service/Fault.h"

namespace larkspan::simulator {

/// A fault and the requests that it befalls.
struct FaultRule {
    Fault fault;
    /// Without a query; empty means every path, as an empty method means every method.
    std::string path = {};
    std::string method = {};
    /// After so many requests it is over; absent, it lasts.
    std::optional<int> times = {};
};

/// The faults that are to come.
class FaultPlan {
public:
    void add(FaultRule rule);
    void clear() { rules_.clear(); }

    /// The faults that befall this request, in the order they were added; those that are counted count it.
    std::vector<Fault> take(const Request& request);

private:
    std::vector<FaultRule> rules_;
};

}  // namespace larkspan::simulator
