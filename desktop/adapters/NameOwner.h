#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>

#include <utility>

#include "adapters/WhenAnswered.h"

namespace larkspan::adapters {

/// Calls `continuation` with the unique name of the process that owns the name on the bus, empty if none does; never if
/// `context` has been destroyed. Qt's own function blocks until the bus answers.
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
