#pragma once

#include <memory>
#include <utility>

#include "support/Observable.h"

namespace larkspan::presentation {

/// Whether a sheet is up, and what it shows then.
template <typename Screen>
class PresentedSheet final : public support::Published<bool> {
public:
    using Published::Published;

    /// Null while the sheet is down.
    const std::shared_ptr<Screen>& screen() const { return screen_; }

    void open(std::shared_ptr<Screen> screen)
    {
        screen_ = std::move(screen);
        screen_->appear();
        Published::operator=(true);
    }

    /// False if it was down.
    bool close()
    {
        if (!**this) return false;
        Published::operator=(false);
        screen_.reset();
        return true;
    }

private:
    std::shared_ptr<Screen> screen_;
};

}  // namespace larkspan::presentation
