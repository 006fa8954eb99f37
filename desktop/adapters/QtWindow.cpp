#include "adapters/QtWindow.h"

#include <QEvent>
#include <QTimer>

#include <chrono>
#include <utility>

#include "adapters/X11Activation.h"

namespace larkspan::adapters {

namespace {

using namespace std::chrono_literals;

// Longer than a window manager's animation.
constexpr auto timeToMinimize = 1s;

}  // namespace

QtWindow::QtWindow(QWindow& window)
    : window_(&window)
{
    window.installEventFilter(this);
}

bool QtWindow::isVisible() const
{
    return window_ && window_->isVisible() && !isMinimized();
}

bool QtWindow::canBecomeKeyWindow() const
{
    return window_ && !window_->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
}

void QtWindow::setDelegate(std::weak_ptr<platform::WindowDelegate> delegate)
{
    delegate_ = std::move(delegate);
}

void QtWindow::miniaturize()
{
    if (!window_) return;
    wasMinimized_ = true;
    keepsFocus_ = window_->isActive();
    // Added to the other states, so that a maximised window is restored maximised.
    window_->setWindowStates(window_->windowStates() | Qt::WindowMinimized);
    QTimer::singleShot(timeToMinimize, this, &QtWindow::noticeRefusedMinimizing);
}

void QtWindow::hide()
{
    if (window_) window_->setVisible(false);
}

void QtWindow::deminiaturize()
{
    if (!window_) return;
    window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
    // Wayland neither reports whether a window is minimised nor restores it without a token; a window that is mapped
    // again is certainly on the screen.
    const bool comesByToken = !wasMinimized_ && !activationToken_.isEmpty();
    if (!X11Activation::isNeeded() && !window_->isActive() && !comesByToken) window_->setVisible(false);
    window_->setVisible(true);
    wasMinimized_ = false;
}

void QtWindow::makeKeyAndOrderFront()
{
    if (!window_) return;
    window_->setVisible(true);
    window_->raise();
    const auto token = std::exchange(activationToken_, {});
    if (X11Activation::isNeeded()) {
        X11Activation::activate(*window_);
        X11Activation::endLaunch(*window_, token);
        return;
    }
    // The one place where Qt 6.4 looks for a token on Wayland. Other threads may read the environment meanwhile, since
    // `launchActivationToken` has prepared this variable's place.
    if (!token.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    window_->requestActivate();
}

bool QtWindow::eventFilter(QObject* watched, QEvent* event)
{
    // The user may have restored the window without the program's help.
    if (event->type() == QEvent::FocusIn) wasMinimized_ = false;
    if (event->type() == QEvent::FocusOut) keepsFocus_ = false;
    if (event->type() != QEvent::Close || closingIsGranted_) return QObject::eventFilter(watched, event);

    const auto delegate = delegate_.lock();
    if (!delegate || delegate->windowShouldClose()) return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

bool QtWindow::isMinimized() const
{
    return window_->windowStates().testFlag(Qt::WindowMinimized);
}

void QtWindow::noticeRefusedMinimizing()
{
    if (!window_ || !window_->isExposed()) return;
    // Wayland does not report whether the request was granted, but a minimised window loses the focus.
    const bool isRefused = X11Activation::isNeeded() ? isMinimized() : wasMinimized_ && keepsFocus_;
    // A window manager that cannot minimise ignores the request, while Qt assumes that it was granted. On Wayland, Qt
    // would assume so even after the user has restored the window.
    if (isMinimized()) window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
    if (!isRefused) return;

    wasMinimized_ = false;
    if (const auto delegate = delegate_.lock()) delegate->windowDidNotMiniaturize();
}

}  // namespace larkspan::adapters
