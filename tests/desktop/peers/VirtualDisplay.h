#pragma once

#include <sys/types.h>

#include <string>

namespace larkspan::peers {

/// An X server that shows to nobody, made the display of this process. Make it before the application object.
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
