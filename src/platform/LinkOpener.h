#pragma once

#include <string>

namespace larkspan::platform {

/// Opens addresses in the user's browser. Main thread only.
class LinkOpener {
public:
    virtual ~LinkOpener() = default;

    virtual void open(const std::string& address) = 0;
};

}  // namespace larkspan::platform
