#pragma once

#include <string>

namespace larkspan::platform {

/// One notice to the user, in plain texts. A later one with the same identifier takes its place on screen.
struct NotificationRequest {
    std::string identifier = {};
    std::string title = {};
    std::string subtitle = {};
    std::string body = {};
    /// What kind of record it tells of, and which one.
    std::string type = {};
    std::string id = {};

    bool operator==(const NotificationRequest&) const = default;
};

/// The desktop's notifications to the user. Main thread only. Calls return at once; whether a notice was seen is
/// nobody's concern.
class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;

    /// Asks to be allowed alerts and sounds.
    virtual void requestAuthorization() = 0;

    /// Shows `request` now, with the desktop's default sound.
    virtual void add(const NotificationRequest& request) = 0;
};

}  // namespace larkspan::platform
