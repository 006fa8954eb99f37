#pragma once

namespace larkspan::adapters {

/// While an object lives, `exit` ends the process without destroying anything. Qt calls it when the display has gone,
/// in the middle of the event loop: other threads are at work then, with what `exit` would destroy. Main thread only.
class ImmediateExit {
public:
    ImmediateExit();
    ~ImmediateExit();
    ImmediateExit(const ImmediateExit&) = delete;
    ImmediateExit& operator=(const ImmediateExit&) = delete;
};

}  // namespace larkspan::adapters
