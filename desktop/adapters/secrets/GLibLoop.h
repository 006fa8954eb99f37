#pragma once

#include <chrono>
#include <functional>

#include "adapters/secrets/GLibPointers.h"
#include "adapters/secrets/GLibStop.h"

namespace larkspan::adapters {

/// An event loop of GLib's that turns only inside of these calls: what GLib offers without blocking then ends at a
/// deadline, or when `stop` is requested. One thread at a time.
class GLibLoop {
public:
    /// While it lives, what is begun on this thread ends in the loop.
    class Entry {
    public:
        explicit Entry(GLibLoop& loop);
        ~Entry();
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

    private:
        GMainContext* context_;
    };

    using Deadline = std::chrono::steady_clock::time_point;
    using Begin = std::function<void(GCancellable* cancellable, GAsyncReadyCallback ready, gpointer data)>;

    /// `stop` must outlive the loop.
    explicit GLibLoop(const GLibStop& stop);
    ~GLibLoop();
    GLibLoop(const GLibLoop&) = delete;
    GLibLoop& operator=(const GLibLoop&) = delete;

    /// Begins, inside of an entry, an asynchronous operation and waits for its result, which past the deadline is that
    /// it was cancelled.
    ObjectPointer<GAsyncResult> await(Deadline deadline, const Begin& begin);

    /// Waits until `condition` holds; false if the deadline or the stop came first.
    bool turnUntil(Deadline deadline, const std::function<bool()>& condition);

    /// Handles what has come in meanwhile, without waiting.
    void catchUp();

    bool isStopped() const { return stop_.isRequested(); }

private:
    const GLibStop& stop_;
    GMainContext* context_;
};

}  // namespace larkspan::adapters
