#include "bridge/RowOrder.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace larkspan::bridge {

std::vector<std::optional<std::size_t>> wantedPlaces(
    const std::vector<std::string_view>& held, const std::vector<std::string_view>& wanted)
{
    constexpr auto none = static_cast<std::size_t>(-1);
    // The first place of each id that is not taken yet, and behind each place the next of its id.
    std::unordered_map<std::string_view, std::size_t> first;
    std::vector<std::size_t> next(wanted.size(), none);
    first.reserve(wanted.size());
    for (auto place = wanted.size(); place-- > 0;) {
        const auto [known, isNew] = first.try_emplace(wanted[place], place);
        if (!isNew) next[place] = std::exchange(known->second, place);
    }

    std::vector<std::optional<std::size_t>> places;
    places.reserve(held.size());
    for (const auto id : held) {
        const auto found = first.find(id);
        const bool isWanted = found != first.end() && found->second != none;
        places.push_back(isWanted ? std::optional(found->second) : std::nullopt);
        if (isWanted) found->second = next[found->second];
    }
    return places;
}

bool isCheaperAnew(const std::vector<std::optional<std::size_t>>& places, std::size_t wanted)
{
    constexpr std::size_t mostRuns = 200;

    std::size_t runs = 0;
    std::vector<bool> isHeld(wanted, false);
    bool wasKept = true;
    for (const auto& place : places) {
        if (place) isHeld[*place] = true;
        if (wasKept && !place) ++runs;
        wasKept = place.has_value();
    }
    bool wasHeld = true;
    for (const bool held : isHeld) {
        if (wasHeld && !held) ++runs;
        wasHeld = held;
    }
    const bool isLong = runs > 2 && runs * std::max(places.size(), wanted) > mostRowsMoved;
    return runs > mostRuns || isLong;
}

std::vector<bool> longestRun(const std::vector<std::size_t>& places)
{
    constexpr auto none = static_cast<std::size_t>(-1);
    // The longest ascending subsequence: for each length, where the run of that length with the smallest end ends.
    std::vector<std::size_t> ends;
    std::vector<std::size_t> before(places.size(), none);
    for (std::size_t at = 0; at < places.size(); ++at) {
        const auto longer = std::ranges::lower_bound(ends, places[at], {}, [&places](auto end) { return places[end]; });
        if (longer != ends.begin()) before[at] = *(longer - 1);
        if (longer == ends.end()) {
            ends.push_back(at);
        } else {
            *longer = at;
        }
    }
    std::vector<bool> isInRun(places.size(), false);
    for (auto at = ends.empty() ? none : ends.back(); at != none; at = before[at]) isInRun[at] = true;
    return isInRun;
}

std::vector<std::size_t> ascending(const std::vector<std::size_t>& places)
{
    std::vector<std::size_t> order(places.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&places](auto row) { return places[row]; });
    return order;
}

std::vector<std::size_t> placesInOrder(const std::vector<std::size_t>& places, const std::vector<std::size_t>& order)
{
    std::vector<std::size_t> sorted;
    sorted.reserve(order.size());
    for (const auto element : order) sorted.push_back(places[element]);
    return sorted;
}

std::ptrdiff_t placeInRun(const std::vector<std::size_t>& places, const std::vector<bool>& isInRun, std::size_t place)
{
    std::ptrdiff_t found = 0;
    for (std::ptrdiff_t at = 0; at < std::ssize(places); ++at) {
        const auto element = static_cast<std::size_t>(at);
        if (isInRun[element] && places[element] < place) found = at + 1;
    }
    return found;
}

}  // namespace larkspan::bridge
