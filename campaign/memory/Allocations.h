#pragma once

#include <cstddef>

namespace larkspan::campaign {

/// Counts the requests for memory of the thread that made it, and refuses one of them. All requests of the process go
/// through it, also those of libraries.
class Allocations {
public:
    /// Refuses request number `refused`, from 0; none by default.
    explicit Allocations(std::size_t refused = static_cast<std::size_t>(-1));
    ~Allocations();
    Allocations(const Allocations&) = delete;
    Allocations& operator=(const Allocations&) = delete;

    std::size_t count() const;
};

}  // namespace larkspan::campaign
