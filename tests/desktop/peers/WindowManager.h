#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace larkspan::peers {

/// Openbox on this process's display, with its defaults. Ends with the object.
class WindowManager {
public:
    WindowManager();
    ~WindowManager();

private:
    QTemporaryDir home_;
    QProcess process_;
};

}  // namespace larkspan::peers
