#pragma once

#include "platform/LinkOpener.h"

namespace larkspan::adapters {

/// Opens addresses with the desktop's default programs.
class DesktopLinkOpener final : public platform::LinkOpener {
public:
    void open(const std::string& address) override;
};

}  // namespace larkspan::adapters
