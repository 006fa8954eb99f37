#pragma once

#include <algorithm>
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

/// Where each element is now that comes to stand first, second and so on once `places` are in ascending order.
std::vector<std::size_t> ascending(const std::vector<std::size_t>& places);

/// `places` in that order.
std::vector<std::size_t> placesInOrder(const std::vector<std::size_t>& places, const std::vector<std::size_t>& order);

/// Where the element that is wanted at `place` goes to stand in the run: before the element that is there now.
std::ptrdiff_t placeInRun(const std::vector<std::size_t>& places, const std::vector<bool>& isInRun, std::size_t place);

/// A list that changes its whole order at once is cheaper to lay out anew than to move row by row.
inline constexpr std::size_t mostSingleMoves = 100;

/// Each run of rows that comes, goes or moves takes all rows behind it along.
inline constexpr std::size_t mostRowsMoved = 2'000'000;

/// Whether so many runs of rows come and go, in lists so long, that the list is cheaper to show anew than to patch.
bool isCheaperAnew(const std::vector<std::optional<std::size_t>>& places, std::size_t wanted);

/// Takes the element at `from` to before the one at `to`.
template <typename Elements>
void moveElement(Elements& elements, std::ptrdiff_t from, std::ptrdiff_t to)
{
    const auto begin = elements.begin();
    if (from < to) {
        std::rotate(begin + from, begin + from + 1, begin + to);
    } else {
        std::rotate(begin + to, begin + from, begin + from + 1);
    }
}

}  // namespace larkspan::bridge
