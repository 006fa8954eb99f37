#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace larkspan::bridge {

/// For each of `held`, its place in `wanted`; absent if it has none. The second row with an id is matched with the
/// second wanted one, and so on.
std::vector<std::optional<std::size_t>> wantedPlaces(
    const std::vector<std::string_view>& held, const std::vector<std::string_view>& wanted);

/// Marks the largest set of places that are in ascending order already; the others have to move.
std::vector<bool> longestRun(const std::vector<std::size_t>& places);

/// The current indexes of the elements that become first, second and so on when `places` are sorted.
std::vector<std::size_t> ascending(const std::vector<std::size_t>& places);

std::vector<std::size_t> placesInOrder(const std::vector<std::size_t>& places, const std::vector<std::size_t>& order);

/// The index before which the element that is wanted at `place` is inserted into the run.
std::ptrdiff_t placeInRun(const std::vector<std::size_t>& places, const std::vector<bool>& isInRun, std::size_t place);

/// A list that changes its whole order at once is cheaper to lay out again than to move row by row.
inline constexpr std::size_t mostSingleMoves = 100;

/// Each run of rows that is inserted, removed or moved also shifts all rows after it.
inline constexpr std::size_t mostRowsMoved = 2'000'000;

/// Whether so many runs of rows are inserted and removed in such a long list that resetting it is cheaper than
/// patching.
bool isResetCheaper(const std::vector<std::optional<std::size_t>>& places, std::size_t wanted);

/// Moves the element at `from` to before the one at `to`.
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
