#include "qml/Renderer.h"

#include <QQuickWindow>

namespace larkspan {

void chooseRenderer()
{
    // Cards and text need no graphics card, and a driver costs more than all the rest: half of the time until the first
    // frame and of the memory, and on a machine without a card a compiler of shaders.
    if (qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QSG_RHI_BACKEND")) return;
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

}  // namespace larkspan
