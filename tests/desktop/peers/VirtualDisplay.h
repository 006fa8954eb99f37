#pragma once

#include <sys/types.h>

#include <string>

namespace larkspan::peers {

/// An X server without a screen, as the display of this process. Construct it before the application object.
class VirtualDisplay {
public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    pid_t server_ = -1;
};

}  // namespace larkspan::peers
