#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace larkspan::bench {

/// The middle one of the values, of which there is at least one.
inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

}  // namespace larkspan::bench
