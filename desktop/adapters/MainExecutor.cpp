#include "adapters/MainExecutor.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace larkspan::adapters {

namespace {

const auto workPosted = static_cast<QEvent::Type>(QEvent::registerEventType());

}  // namespace

MainExecutor::~MainExecutor()
{
    drop();
}

void MainExecutor::post(support::UniqueFunction<void()> work)
{
    {
        const std::scoped_lock lock(mutex_);
        queue_.push_back(std::move(work));
    }
    // The event does not carry the work: Qt forgets the events of a destroyed object before it destroys them, and a
    // task that unwinds during that destruction posts again.
    QCoreApplication::postEvent(this, new QEvent(workPosted));
}

bool MainExecutor::drop()
{
    bool hadWork = false;
    while (next()) hadWork = true;
    return hadWork;
}

bool MainExecutor::event(QEvent* event) noexcept
{
    if (event->type() != workPosted) return QObject::event(event);
    if (auto work = next()) (*work)();
    return true;
}

std::optional<support::UniqueFunction<void()>> MainExecutor::next()
{
    const std::scoped_lock lock(mutex_);
    if (queue_.empty()) return std::nullopt;
    std::optional work(std::move(queue_.front()));
    queue_.pop_front();
    return work;
}

}  // namespace larkspan::adapters
