#pragma once

#include <cstddef>
#include <list>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>

#include "adapters/NotificationText.h"

namespace larkspan::adapters {

/// A notice for the notification server; two with the same identifier are the same notice.
struct Notice {
    std::string identifier;
    NotificationText text;
};

/// The notices that no server has accepted yet, in order of arrival, one for each identifier.
class WaitingNotices {
public:
    /// The most notices that are held for a server that never answers; more than any account produces at once.
    static constexpr std::size_t most = 10'000;

    /// Appends `notice`, or replaces the one with its identifier. Beyond `most` the oldest is dropped.
    void add(Notice notice);

    /// Removes and returns the oldest whose identifier is not in `excluded`.
    std::optional<Notice> takeOldest(const std::set<std::string>& excluded);

    bool isEmpty() const { return notices_.empty(); }

private:
    Notice take(std::list<Notice>::iterator place);

    std::list<Notice> notices_;
    std::unordered_map<std::string, std::list<Notice>::iterator> places_;
};

}  // namespace larkspan::adapters
