#pragma once

#include "platform/LinkOpener.h"

namespace larkspan::adapters {

/// Hands addresses to whatever the desktop opens them with.
class DesktopLinkOpener final : public platform::LinkOpener {
public:
    void open(const std::string& address) override;
};

}  // namespace larkspan::adapters
