#include "core/UpdaterController.h"

#include <utility>

namespace larkspan::core {

void UpdaterController::checkForUpdates()
{
    isShowing = true;
    if (std::exchange(isChecking_, true)) return;
    finding = std::nullopt;
    updater_.check([weak = weak_from_this()](platform::UpdateCheck check) {
        const auto self = weak.lock();
        if (!self) return;
        self->isChecking_ = false;
        self->finding = std::move(check);
    });
}

}  // namespace larkspan::core
