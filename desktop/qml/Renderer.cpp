#include "qml/Renderer.h"

#include <QQuickWindow>

namespace larkspan {

void chooseRenderer()
{
    // Cards and text need no graphics card, and a driver costs half of the time until the first frame and half of the
    // memory; on a machine without a card it also brings a shader compiler.
    if (qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QSG_RHI_BACKEND")) return;
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

}  // namespace larkspan
