#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/Observable.h"

namespace larkspan::core {

/// Sends named notices from one part of the program to another, so that neither depends on the other. Main thread only.
class InProcessNotifications {
public:
    /// Asks for a page to be shown; the object is its id.
    static constexpr std::string_view openStatusPage = "openStatusPage";
    /// Asks for an incident to be shown; the object is its id.
    static constexpr std::string_view openIncident = "openIncident";

    using Observer = std::function<void(const std::string& object)>;

    /// Calls `observer` for each notice named `name`, as long as the subscription exists.
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
