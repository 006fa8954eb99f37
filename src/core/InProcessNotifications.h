#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/Observable.h"

namespace larkspan::core {

/// Notices by name from one part of the program to whichever other listens, so that neither knows the other.
/// Main thread only.
class InProcessNotifications {
public:
    /// A page is to be shown; the object is its id.
    static constexpr std::string_view openStatusPage = "openStatusPage";
    /// An incident is to be shown; the object is its id.
    static constexpr std::string_view openIncident = "openIncident";

    using Observer = std::function<void(const std::string& object)>;

    /// Calls `observer` for each notice called `name`, as long as the subscription lives.
    [[nodiscard]] support::Subscription observe(std::string_view name, Observer observer);

    void post(std::string_view name, const std::string& object);

private:
    struct Listener {
        std::string name;
        Observer observer;
    };

    std::vector<std::weak_ptr<const Listener>> listeners_;
};

}  // namespace larkspan::core
