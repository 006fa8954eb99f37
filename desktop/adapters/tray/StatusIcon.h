#pragma once

#include <QColor>
#include <QString>

#include <string>

#include "adapters/tray/StatusNotifierTypes.h"

namespace larkspan::adapters {

/// The item's icon: the name of the installed one, which the host recolours, or its pixels where none is installed.
struct StatusIcon {
    QString themeName = {};
    StatusNotifierPixmaps pixmaps = {};

    /// The icon for a symbol of the overall status; any other symbol is that of the unknown one.
    static StatusIcon of(const std::string& symbolName, const QColor& color);

    bool operator==(const StatusIcon&) const = default;
};

}  // namespace larkspan::adapters
