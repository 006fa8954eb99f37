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
        if (owned_) owned_.release()->deleteLater();
        bridge_ = shown_ ? new Bridge(shown_, updates) : nullptr;
        owned_.reset(bridge_);
        return true;
    }

    Bridge* get() const { return bridge_; }

private:
    std::shared_ptr<Shown> shown_;
    Bridge* bridge_ = nullptr;
    /// The bridge as what it is to Qt: whoever destroys this object need not know the bridge's class.
    std::unique_ptr<QObject> owned_;
};

}  // namespace larkspan::bridge
