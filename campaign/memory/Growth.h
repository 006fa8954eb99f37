#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace larkspan::campaign {

/// What is not as promised after so many cycles over a living account: the process grows by less than 256 KB, and has
/// as many threads and open files as before.
std::vector<std::string> growthFailures(std::size_t cycles);

}  // namespace larkspan::campaign
