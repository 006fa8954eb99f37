#pragma once

#include <QColor>
#include <QString>

#include <string>

#include "adapters/tray/StatusNotifierTypes.h"

namespace larkspan::adapters {

/// The item's icon: the name of the installed one, which the host recolours, or its pixels where none is installed.
/// Both are looked up when somebody asks, which no desktop without a panel does.
class StatusIcon {
public:
    StatusIcon() = default;

    /// The icon for a symbol of the overall status; any other symbol is that of the unknown one.
    StatusIcon(const std::string& symbolName, const QColor& color);

    /// Empty where the icon is not installed.
    QString themeName() const;

    /// Empty where it is.
    StatusNotifierPixmaps pixmaps() const;

    /// Whether a host that shows `other` shows this already: the colour of an installed icon is the host's.
    bool looksLike(const StatusIcon& other) const;

private:
    QString name_;
    QColor color_;
};

}  // namespace larkspan::adapters
