#include "adapters/MainExecutor.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace larkspan::adapters {

namespace {

const auto workPosted = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Half a frame of a usual display.
constexpr std::chrono::milliseconds longestWhile{8};

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
    if (event->type() == QEvent::Timer) {
        pause_.stop();
        runForAWhile();
        return true;
    }
    if (event->type() != workPosted) return QObject::event(event);
    if (!pause_.isActive()) startWhile();
    if (isWhileOver()) return true;
    if (auto work = next()) (*work)();
    return true;
}

void MainExecutor::runForAWhile()
{
    auto work = next();
    if (!work) return;
    // First, so that a nested loop in the work goes on with what is queued.
    startWhile();
    while (work) {
        (*work)();
        if (isWhileOver()) return;
        work = next();
    }
}

void MainExecutor::startWhile()
{
    whileStart_ = std::chrono::steady_clock::now();
    pause_.start(0, this);
}

bool MainExecutor::isWhileOver() const
{
    return std::chrono::steady_clock::now() - whileStart_ > longestWhile;
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
