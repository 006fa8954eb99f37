#pragma once

#include <QColor>
#include <QString>

#include <string>

#include "adapters/tray/StatusNotifierTypes.h"

namespace larkspan::adapters {

/// The item's icon: the name of the installed icon, which the host recolours, or pixels if none is installed. Both are
/// looked up on demand, which never happens on a desktop without a panel.
class StatusIcon {
public:
    StatusIcon() = default;

    /// The icon for a symbol of the overall status; any other symbol gives the icon of the unknown status.
    StatusIcon(const std::string& symbolName, const QColor& color);

    /// Empty if the icon is not installed.
    QString themeName() const;

    /// Empty if the icon is installed.
    StatusNotifierPixmaps pixmaps() const;

    /// Whether this looks like `other` on a host, which chooses the colour of an installed icon itself.
    bool looksLike(const StatusIcon& other) const;

private:
    QString name_;
    QColor color_;
};

}  // namespace larkspan::adapters
