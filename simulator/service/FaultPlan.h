#pragma once

#include <optional>
#include <string>
#include <vector>

#include "service/Fault.h"

namespace larkspan::simulator {

/// A fault and the requests that it affects.
struct FaultRule {
    Fault fault;
    /// Without a query; empty for every path, as an empty method is for every method.
    std::string path = {};
    std::string method = {};
    /// The number of requests after which the fault ends; absent for no end.
    std::optional<int> times = {};
};

/// The faults of future requests.
class FaultPlan {
public:
    void add(FaultRule rule);
    void clear() { rules_.clear(); }

    /// The faults of this request in the order in which they were added; counts the request for those with a number of
    /// times.
    std::vector<Fault> take(const Request& request);

private:
    std::vector<FaultRule> rules_;
};

}  // namespace larkspan::simulator
