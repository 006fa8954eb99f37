#include "adapters/secrets/GLibLoop.h"

#include <algorithm>

namespace larkspan::adapters {

namespace {

using namespace std::chrono_literals;

struct SourceRemoval {
    void operator()(GSource* source) const
    {
        g_source_destroy(source);
        g_source_unref(source);
    }
};
using SourcePointer = std::unique_ptr<GSource, SourceRemoval>;

guint millisecondsUntil(GLibLoop::Deadline deadline)
{
    // Rounded up, so that the deadline is past when the source fires.
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    constexpr std::chrono::milliseconds longest = 24h;
    return static_cast<guint>(std::clamp<std::chrono::milliseconds>(left, 0ms, longest).count());
}

gboolean wakeOnly(gpointer /*data*/)
{
    return G_SOURCE_REMOVE;
}

gboolean wakeOnlyOnStop(GCancellable* /*stop*/, gpointer /*data*/)
{
    return G_SOURCE_REMOVE;
}

void keepResult(GObject* /*source*/, GAsyncResult* result, gpointer data)
{
    static_cast<ObjectPointer<GAsyncResult>*>(data)->reset(G_ASYNC_RESULT(g_object_ref(result)));
}

}  // namespace

GLibLoop::GLibLoop(const GLibStop& stop)
    : stop_(stop)
    , context_(g_main_context_new())
{
}

GLibLoop::~GLibLoop()
{
    // Destroyed users of the loop have left their clean-up to its next iteration.
    catchUp();
    g_main_context_unref(context_);
}

void GLibLoop::catchUp()
{
    while (g_main_context_iteration(context_, FALSE) != FALSE) {}
}

GLibLoop::Entry::Entry(GLibLoop& loop)
    : context_(loop.context_)
{
    g_main_context_push_thread_default(context_);
}

GLibLoop::Entry::~Entry()
{
    g_main_context_pop_thread_default(context_);
}

ObjectPointer<GAsyncResult> GLibLoop::await(Deadline deadline, const Begin& begin)
{
    ObjectPointer<GAsyncResult> result;
    const ObjectPointer<GCancellable> cancellable(g_cancellable_new());
    begin(cancellable.get(), keepResult, &result);
    const bool came = turnUntil(deadline, [&result] { return result != nullptr; });
    if (!came) g_cancellable_cancel(cancellable.get());
    // A cancelled operation ends at once, but only within this loop.
    while (!result) g_main_context_iteration(context_, TRUE);
    return result;
}

bool GLibLoop::turnUntil(Deadline deadline, const std::function<bool()>& condition)
{
    const SourcePointer timeout(g_timeout_source_new(millisecondsUntil(deadline)));
    g_source_set_callback(timeout.get(), wakeOnly, nullptr, nullptr);
    g_source_attach(timeout.get(), context_);

    const SourcePointer stop(g_cancellable_source_new(stop_.cancellable()));
    g_source_set_callback(stop.get(), G_SOURCE_FUNC(wakeOnlyOnStop), nullptr, nullptr);
    g_source_attach(stop.get(), context_);

    while (!condition()) {
        if (isStopped() || std::chrono::steady_clock::now() >= deadline) return false;
        g_main_context_iteration(context_, TRUE);
    }
    return true;
}

}  // namespace larkspan::adapters
