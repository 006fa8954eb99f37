#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>

#include "platform/WindowSystem.h"

namespace larkspan::adapters {

/// A `QWindow`, such as a `QQuickWindow`, as a window of the port. Main thread only.
class QtWindow final : public QObject, public platform::Window {
public:
    explicit QtWindow(QWindow& window);

    /// Whether the window still exists.
    bool exists() const { return !window_.isNull(); }

    /// Lets every later close happen without asking the delegate, because the program ends.
    void grantClosing() { closingIsGranted_ = true; }

    /// The token with which the next `makeKeyAndOrderFront` takes the focus.
    void setActivationToken(const QString& token) { activationToken_ = token; }

    bool isVisible() const override;
    bool canBecomeKeyWindow() const override;
    void setDelegate(std::weak_ptr<platform::WindowDelegate> delegate) override;
    /// On a desktop that cannot minimise, the window does not change, and its delegate is told after a second.
    void miniaturize() override;
    void hide() override;
    void deminiaturize() override;
    void makeKeyAndOrderFront() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isMinimized() const;
    void noticeRefusedMinimizing();

    QPointer<QWindow> window_;
    std::weak_ptr<platform::WindowDelegate> delegate_;
    QString activationToken_;
    bool closingIsGranted_ = false;
    bool wasMinimized_ = false;
    bool keepsFocus_ = false;
};

}  // namespace larkspan::adapters
