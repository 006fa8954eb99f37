#include "adapters/tray/StatusNotifierItemService.h"

namespace larkspan::adapters {

StatusNotifierItemService::StatusNotifierItemService(QObject* parent)
    : QObject(parent)
{
    registerStatusNotifierTypes();
}

void StatusNotifierItemService::setIcon(const StatusIcon& icon, const QString& accessibleDescription)
{
    const bool isUnchanged = icon.looksLike(icon_) && accessibleDescription == accessibleDescription_;
    icon_ = icon;
    if (isUnchanged) return;
    accessibleDescription_ = accessibleDescription;
    emit NewIcon();
}

void StatusNotifierItemService::setToolTip(const QString& toolTip)
{
    if (toolTip == toolTip_) return;
    toolTip_ = toolTip;
    emit NewToolTip();
}

void StatusNotifierItemService::Activate(int, int)
{
    // After the answer to the host, as for the rows of the menu.
    QMetaObject::invokeMethod(this, &StatusNotifierItemService::activated, Qt::QueuedConnection);
}

// Hosts call these even if an item does nothing then.
void StatusNotifierItemService::SecondaryActivate(int, int) {}
void StatusNotifierItemService::ContextMenu(int, int) {}
void StatusNotifierItemService::Scroll(int, const QString&) {}

void StatusNotifierItemService::ProvideXdgActivationToken(const QString& token)
{
    emit activationTokenProvided(token);
}

}  // namespace larkspan::adapters
