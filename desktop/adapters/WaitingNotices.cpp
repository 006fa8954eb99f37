#include "adapters/WaitingNotices.h"

#include <algorithm>
#include <utility>

namespace larkspan::adapters {

void WaitingNotices::add(Notice notice)
{
    const auto same = places_.find(notice.identifier);
    if (same != places_.end()) {
        *same->second = std::move(notice);
        return;
    }
    notices_.push_back(std::move(notice));
    places_.emplace(notices_.back().identifier, std::prev(notices_.end()));
    if (notices_.size() > most) take(notices_.begin());
}

std::optional<Notice> WaitingNotices::takeOldest(const std::set<std::string>& excluded)
{
    const auto isWanted = [&](const Notice& notice) { return !excluded.contains(notice.identifier); };
    const auto oldest = std::ranges::find_if(notices_, isWanted);
    if (oldest == notices_.end()) return std::nullopt;
    return take(oldest);
}

Notice WaitingNotices::take(std::list<Notice>::iterator place)
{
    auto taken = std::move(*place);
    places_.erase(taken.identifier);
    notices_.erase(place);
    return taken;
}

}  // namespace larkspan::adapters
