#pragma once

#include "adapters/secrets/GLibPointers.h"

namespace larkspan::adapters {

/// Ends the waits of every `GLibLoop` that was constructed with it; later ones end at once. Any thread.
class GLibStop {
public:
    void request() { g_cancellable_cancel(cancellable_.get()); }
    bool isRequested() const { return g_cancellable_is_cancelled(cancellable_.get()) != FALSE; }

    GCancellable* cancellable() const { return cancellable_.get(); }

private:
    ObjectPointer<GCancellable> cancellable_{g_cancellable_new()};
};

}  // namespace larkspan::adapters
