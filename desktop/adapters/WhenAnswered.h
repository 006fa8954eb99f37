#pragma once

#include <QDBusPendingCallWatcher>

#include <utility>

namespace larkspan::adapters {

/// Calls `continuation` with `call` when it is answered, has failed or has timed out; never if `context` has been
/// destroyed.
template <typename Continuation>
void whenAnswered(QObject* context, const QDBusPendingCall& call, Continuation continuation)
{
    if (call.isFinished()) {
        // A watcher never hears of a call that was not made because there is no connection.
        QMetaObject::invokeMethod(
            context, [call, continuation = std::move(continuation)]() mutable { continuation(call); },
            Qt::QueuedConnection);
        return;
    }
    auto* const watcher = new QDBusPendingCallWatcher(call, context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
        [watcher, continuation = std::move(continuation)]() mutable {
            watcher->deleteLater();
            continuation(static_cast<const QDBusPendingCall&>(*watcher));
        });
}

}  // namespace larkspan::adapters
