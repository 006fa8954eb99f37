#include "account/Storyline.h"

namespace larkspan::simulator {

using namespace std::chrono_literals;

Storyline::Storyline(std::vector<StoryEvent> events, std::chrono::milliseconds period)
    : events_(std::move(events))
    , period_(period)
{
}

Storyline Storyline::ordinaryDay()
{
    return Storyline({{15s, "page-2", PageHealth::degraded}, {45s, "page-2", PageHealth::majorOutage},
                         {75s, "page-3", PageHealth::maintenance}, {105s, "page-2", PageHealth::degraded},
                         {165s, "page-2", PageHealth::operational}, {225s, "page-3", PageHealth::operational}},
        5min);
}

void Storyline::tellUpTo(std::chrono::milliseconds elapsed, support::Time now, Account& account)
{
    while (!events_.empty() && nextAt() <= elapsed) {
        const auto& event = events_[next_];
        if (auto* page = account.findPage(event.pageId)) {
            page->setHealth(event.health);
            page->updatedAt = now - (elapsed - nextAt());
        }
        if (++next_ == events_.size()) {
            next_ = 0;
            roundStart_ += period_;
        }
    }
}

std::chrono::milliseconds Storyline::nextAt() const
{
    return roundStart_ + events_[next_].at;
}

}  // namespace larkspan::simulator
