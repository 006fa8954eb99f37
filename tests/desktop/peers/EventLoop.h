#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace larkspan::peers {

/// Runs the event loop until `condition` holds; returns false if it does not within `patience`.
template <typename Condition>
bool turnUntil(Condition condition, std::chrono::milliseconds patience = std::chrono::seconds(10))
{
    const QDeadlineTimer deadline(patience);
    // The condition may change in another process, without an event here.
    QTimer tick;
    tick.start(std::chrono::milliseconds(5));
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// Runs the event loop for `duration`.
inline void turnFor(std::chrono::milliseconds duration)
{
    turnUntil([] { return false; }, duration);
}

}  // namespace larkspan::peers
