#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace larkspan::peers {

/// Turns the event loop until `condition` holds; false if it doesn't within `patience`.
template <typename Condition>
bool turnUntil(Condition condition, std::chrono::milliseconds patience = std::chrono::seconds(10))
{
    const QDeadlineTimer deadline(patience);
    // What is waited for may happen in another process, without an event here.
    QTimer tick;
    tick.start(std::chrono::milliseconds(5));
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// Turns the event loop for `duration`.
inline void turnFor(std::chrono::milliseconds duration)
{
    turnUntil([] { return false; }, duration);
}

}  // namespace larkspan::peers
