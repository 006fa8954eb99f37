#pragma once

#include <QTimer>

#include "platform/LinkOpener.h"

namespace larkspan::adapters {

/// Opens addresses with the desktop's default programs.
class DesktopLinkOpener final : public platform::LinkOpener {
public:
    DesktopLinkOpener();

    void open(const std::string& address) override;

private:
    /// Runs while what opens the last address may still be starting.
    QTimer opening_;
};

}  // namespace larkspan::adapters
