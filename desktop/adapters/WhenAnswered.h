#pragma once

#include <QDBusPendingCallWatcher>

#include <utility>

namespace larkspan::adapters {

/// Calls `continuation` with `call` once it is answered, has failed or its deadline has come; never if `context` has
/// gone by then.
template <typename Continuation>
void whenAnswered(QObject* context, const QDBusPendingCall& call, Continuation continuation)
{
    auto* const watcher = new QDBusPendingCallWatcher(call, context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
        [watcher, continuation = std::move(continuation)]() mutable {
            watcher->deleteLater();
            continuation(static_cast<const QDBusPendingCall&>(*watcher));
        });
}

}  // namespace larkspan::adapters
