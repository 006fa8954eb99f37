#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "account/Account.h"

namespace larkspan::simulator {

/// Something that happens to a page at some time after the story's start.
struct StoryEvent {
    std::chrono::milliseconds at;
    std::string pageId;
    PageHealth health;
};

/// What happens to an account as time passes, over and over. It is told by the clock, when somebody looks,
/// so it needs no timer.
class Storyline {
public:
    /// `events` in order of their times, which lie within `period`, the time until the story starts again.
    Storyline(std::vector<StoryEvent> events, std::chrono::milliseconds period);

    /// Five minutes of an ordinary day for a seeded account of at least three pages: one page slows down, fails and
    /// recovers, another is taken into maintenance and back. Whoever looks once a minute sees each step.
    static Storyline ordinaryDay();

    /// Lets everything happen that is due `elapsed` after the start and has not happened yet, in order.
    void tellUpTo(std::chrono::milliseconds elapsed, support::Time now, Account& account);

private:
    std::chrono::milliseconds nextAt() const;

    std::vector<StoryEvent> events_;
    std::chrono::milliseconds period_;
    std::size_t next_ = 0;
    std::chrono::milliseconds roundStart_{0};
};

}  // namespace larkspan::simulator
