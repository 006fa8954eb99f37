#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace larkspan::bridge {

/// For each of `held`, the place that `wanted` gives it; absent where it gives none. The second row of an id is matched
/// with the second one wanted, and so on.
std::vector<std::optional<std::size_t>> wantedPlaces(
    const std::vector<std::string_view>& held, const std::vector<std::string_view>& wanted);

/// Marks the most places that are in ascending order already; whatever is not marked has to move.
std::vector<bool> longestRun(const std::vector<std::size_t>& places);

}  // namespace larkspan::bridge
