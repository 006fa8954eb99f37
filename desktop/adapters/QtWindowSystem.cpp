#include "adapters/QtWindowSystem.h"

#include <QEvent>
#include <QGuiApplication>

#include <vector>

namespace larkspan::adapters {

namespace {

// Much longer than any; on X11 it is sent to the display in pieces of twenty bytes.
constexpr qsizetype longestToken = 1024;

}  // namespace

QtWindowSystem::QtWindowSystem()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    qGuiApp->installEventFilter(this);
}

void QtWindowSystem::add(QWindow& window)
{
    windows_.push_back(std::make_shared<QtWindow>(window));
    // Immediately: holders of a weak reference have to see that it is gone.
    connect(&window, &QObject::destroyed, this, &QtWindowSystem::forgetLostWindows);
}

void QtWindowSystem::setActivationToken(const QString& token)
{
    const auto believed = token.size() > longestToken ? QString() : token;
    for (const auto& window : windows_) window->setActivationToken(believed);
}

std::vector<std::shared_ptr<platform::Window>> QtWindowSystem::windows()
{
    return {windows_.begin(), windows_.end()};
}

void QtWindowSystem::activateIgnoringOtherApps() {}

void QtWindowSystem::terminate()
{
    QMetaObject::invokeMethod(qGuiApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

bool QtWindowSystem::eventFilter(QObject* watched, QEvent* event)
{
    // On a quit, Qt closes each window and gives up at the first that stays open.
    if (event->type() == QEvent::Quit) {
        for (const auto& window : windows_) window->grantClosing();
    }
    return QObject::eventFilter(watched, event);
}

void QtWindowSystem::forgetLostWindows()
{
    std::erase_if(windows_, [](const auto& window) { return !window->exists(); });
}

}  // namespace larkspan::adapters
