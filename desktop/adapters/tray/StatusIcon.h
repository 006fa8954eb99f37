#pragma once

#include <QString>

#include <string>

#include "adapters/tray/StatusNotifierTypes.h"

namespace larkspan::adapters {

/// The item's icon: the name of the installed icon, which the host recolours. If none is installed, the folder with the
/// program's own ones, and pixels for hosts that do not look there. All are looked up on demand, which never happens on
/// a desktop without a panel.
class StatusIcon {
public:
    StatusIcon() = default;

    /// The icon for a symbol of the overall status; any other symbol gives the icon of the unknown status.
    /// `isOnDark` says whether its ground is probably dark.
    StatusIcon(const std::string& symbolName, bool isOnDark);

    /// Empty if there is no file of the icon.
    QString themeName() const;

    /// The folder of themes with the icon; empty if hosts find it without.
    QString themePath() const;

    /// Empty if the icon is installed.
    StatusNotifierPixmaps pixmaps() const;

    /// Whether this looks like `other` on a host, which chooses the colour of an installed icon itself.
    bool looksLike(const StatusIcon& other) const;

private:
    QString name_;
    bool isOnDark_ = false;
};

}  // namespace larkspan::adapters
