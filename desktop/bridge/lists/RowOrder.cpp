#include "bridge/lists/RowOrder.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>
#include <tuple>

namespace larkspan::bridge {

namespace {

/// An id and its place in a list. Sorted by hash, ids are matched in a fraction of the time of a hash table, which
/// misses the cache for each.
struct PlacedId {
    std::size_t hash;
    std::string_view id;
    std::size_t place;

    bool isOfSmallerId(const PlacedId& other) const { return std::tie(hash, id) < std::tie(other.hash, other.id); }
    bool operator<(const PlacedId& other) const
    {
        return std::tie(hash, id, place) < std::tie(other.hash, other.id, other.place);
    }
};

std::vector<PlacedId> sorted(const std::vector<std::string_view>& ids)
{
    std::vector<PlacedId> placed;
    placed.reserve(ids.size());
    for (const auto id : ids) placed.push_back({std::hash<std::string_view>()(id), id, placed.size()});
    std::ranges::sort(placed, std::less<>());
    return placed;
}

}  // namespace

std::vector<std::optional<std::size_t>> wantedPlaces(
    const std::vector<std::string_view>& held, const std::vector<std::string_view>& wanted)
{
    const auto heldIds = sorted(held);
    const auto wantedIds = sorted(wanted);
    std::vector<std::optional<std::size_t>> places(held.size());
    auto place = wantedIds.begin();
    for (const auto& id : heldIds) {
        while (place != wantedIds.end() && place->isOfSmallerId(id)) ++place;
        if (place != wantedIds.end() && !id.isOfSmallerId(*place)) places[id.place] = (place++)->place;
    }
    return places;
}

bool isResetCheaper(const std::vector<std::optional<std::size_t>>& places, std::size_t wanted)
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
    // The longest ascending subsequence: for each length, the end of the run of that length whose end is smallest.
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
