#pragma once

namespace larkspan::platform {

/// The desktop's notifications to the user.
class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;

    /// Asks to be allowed alerts and sounds, and returns at once; the answer is nobody's concern.
    virtual void requestAuthorization() = 0;
};

}  // namespace larkspan::platform
