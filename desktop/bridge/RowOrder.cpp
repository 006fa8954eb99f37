#include "bridge/RowOrder.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace larkspan::bridge {

std::vector<std::optional<std::size_t>> wantedPlaces(
    const std::vector<std::string_view>& held, const std::vector<std::string_view>& wanted)
{
    struct Occurrences {
        std::vector<std::size_t> places;
        std::size_t taken = 0;
    };
    std::unordered_map<std::string_view, Occurrences> byId;
    byId.reserve(wanted.size());
    for (std::size_t place = 0; place < wanted.size(); ++place) byId[wanted[place]].places.push_back(place);

    std::vector<std::optional<std::size_t>> places;
    places.reserve(held.size());
    for (const auto id : held) {
        const auto found = byId.find(id);
        const bool isWanted = found != byId.end() && found->second.taken < found->second.places.size();
        places.push_back(isWanted ? std::optional(found->second.places[found->second.taken++]) : std::nullopt);
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
