#pragma once

#include <chrono>
#include <functional>

#include "adapters/secrets/GLibPointers.h"
#include "adapters/secrets/GLibStop.h"

namespace larkspan::adapters {

/// A GLib event loop that runs only inside these calls, so that GLib's asynchronous functions can be waited for until a
/// deadline, or until `stop` is requested. One thread at a time.
class GLibLoop {
public:
    /// While it exists, operations that are started on this thread end in the loop.
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

    /// Starts an asynchronous operation, inside an entry, and waits for its result. At the deadline the operation is
    /// cancelled, and the result says so.
    ObjectPointer<GAsyncResult> await(Deadline deadline, const Begin& begin);

    /// Waits until `condition` holds; false if the deadline or the stop came first.
    bool turnUntil(Deadline deadline, const std::function<bool()>& condition);

    /// Handles pending events without waiting.
    void catchUp();

    bool isStopped() const { return stop_.isRequested(); }

private:
    const GLibStop& stop_;
    GMainContext* context_;
};

}  // namespace larkspan::adapters
