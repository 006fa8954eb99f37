#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>

#include <utility>

#include "adapters/WhenAnswered.h"

namespace larkspan::adapters {

/// Calls `continuation` with the unique name of the process that owns the name on the bus by now, empty if none does;
/// never if `context` has gone by then. Qt's own way to ask waits for the bus.
template <typename Continuation>
void whenOwnerIsKnown(QObject* context, const QDBusConnection& bus, const QString& name, Continuation continuation)
{
    auto question = QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner");
    question.setArguments({name});
    whenAnswered(context, bus.asyncCall(question),
        [continuation = std::move(continuation)](const QDBusPendingCall& answer) mutable {
            const QDBusPendingReply<QString> owner = answer;
            continuation(owner.isError() ? QString() : owner.value());
        });
}

}  // namespace larkspan::adapters
