#pragma once

#include <QObject>

#include <memory>

#include "bridge/screens/ScreenUpdates.h"

namespace larkspan::bridge {

/// The bridge of a screen that comes and goes with the object it shows.
template <typename Bridge, typename Shown>
class ChildScreen {
public:
    /// Makes the bridge of `shown`, or lets go of it where there is none; the same object keeps its bridge. False if
    /// nothing had to be done.
    bool follow(const std::shared_ptr<Shown>& shown, const ScreenUpdates& updates)
    {
        if (shown_ == shown) return false;
        shown_ = shown;
        // A screen that closes still reads its own.
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
