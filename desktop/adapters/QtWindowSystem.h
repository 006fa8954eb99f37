#pragma once

#include <QObject>
#include <QString>

#include "adapters/QtWindow.h"

namespace larkspan::adapters {

/// The program's windows on the desktop. One instance for each `QGuiApplication`; main thread only.
///
/// Closing the last window does not end the program. When the session ends or the program quits, the windows close
/// without asking their delegates: otherwise a window that minimises instead of closing would block the logout.
class QtWindowSystem final : public QObject, public platform::WindowSystem {
public:
    QtWindowSystem();

    /// Makes `window` one of the program's windows, for as long as it exists.
    void add(QWindow& window);

    /// Sets the token that came with the user's action, so that the window it asks for may take the focus.
    void setActivationToken(const QString& token);

    std::vector<std::shared_ptr<platform::Window>> windows() override;
    /// Does nothing: a Linux desktop activates windows, not programs, and `makeKeyAndOrderFront` does that.
    void activateIgnoringOtherApps() override;
    /// Ends the event loop in its next turn, even if it has not started yet.
    void terminate() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void forgetLostWindows();

    std::vector<std::shared_ptr<QtWindow>> windows_;
};

}  // namespace larkspan::adapters
