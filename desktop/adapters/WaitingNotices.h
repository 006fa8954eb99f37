#pragma once

#include <cstddef>
#include <list>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>

#include "adapters/NotificationText.h"

namespace larkspan::adapters {

/// A notice for the notification server, told from others by its identifier.
struct Notice {
    std::string identifier;
    NotificationText text;
};

/// Notices that no server has taken yet, in the order in which they came, one for each identifier.
class WaitingNotices {
public:
    /// More than any account brings at once; what a server that never answers can make this program hold.
    static constexpr std::size_t most = 10'000;

    /// Puts `notice` last, or in the place of the one with its identifier. Past `most` the oldest goes.
    void add(Notice notice);

    /// Takes out the oldest whose identifier is not among `excluded`.
    std::optional<Notice> takeOldest(const std::set<std::string>& excluded);

    bool isEmpty() const { return notices_.empty(); }

private:
    Notice take(std::list<Notice>::iterator place);

    std::list<Notice> notices_;
    std::unordered_map<std::string, std::list<Notice>::iterator> places_;
};

}  // namespace larkspan::adapters
