#pragma once

#include <string>

namespace larkspan::platform {

/// A notice to the user, in plain texts. A later one with the same identifier replaces it on screen.
struct NotificationRequest {
    std::string identifier = {};
    std::string title = {};
    std::string subtitle = {};
    std::string body = {};
    /// The kind and the id of the record that it is about.
    std::string type = {};
    std::string id = {};

    bool operator==(const NotificationRequest&) const = default;
};

/// The desktop's notifications to the user. Main thread only. Calls return at once and report nothing back.
class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;

    /// Asks for permission to show alerts and to play sounds.
    virtual void requestAuthorization() = 0;

    /// Shows `request` now, with the desktop's default sound.
    virtual void add(const NotificationRequest& request) = 0;
};

}  // namespace larkspan::platform
