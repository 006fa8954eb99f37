#pragma once

#include <QObject>

#include <memory>

#include "support/ScreenUpdates.h"

namespace larkspan::bridge {

/// The bridge of a screen, which exists as long as the object that it shows.
template <typename Bridge, typename Shown>
class ChildScreen {
public:
    /// Creates the bridge of `shown`, or releases it if `shown` is null; the same object keeps its bridge. Returns
    /// false if nothing changed.
    bool follow(const std::shared_ptr<Shown>& shown, const support::ScreenUpdates& updates)
    {
        if (shown_ == shown) return false;
        shown_ = shown;
        // A screen that closes still reads its bridge.
        if (bridge_) bridge_.release()->deleteLater();
        if (shown_) bridge_ = std::make_unique<Bridge>(shown_, updates);
        return true;
    }

    Bridge* get() const { return bridge_.get(); }

private:
    std::shared_ptr<Shown> shown_;
    std::unique_ptr<Bridge> bridge_;
};

}  // namespace larkspan::bridge
