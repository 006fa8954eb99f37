#include "adapters/tray/MenuRowProperties.h"

#include <QString>

#include "adapters/tray/DBusMenuTypes.h"
#include "adapters/tray/DotImage.h"
#include "support/LegibleOutside.h"

namespace larkspan::adapters {

namespace {

/// A single underscore marks the mnemonic and is not shown; two are shown as one. An ampersand has no meaning here:
/// hosts whose toolkit uses it as a mark double it themselves.
QString label(const std::string& title)
{
    return QString::fromStdString(support::legibleOutside(title)).replace('_', "__");
}

}  // namespace

QVariantMap menuRowProperties(const platform::MenuRow& row)
{
    using Kind = platform::MenuRow::Kind;
    if (row.kind == Kind::separator) return {{"type", "separator"}};

    QVariantMap properties{{"label", label(row.title)}};
    if (row.kind == Kind::information) properties.insert("enabled", false);
    if (row.dot != platform::MenuRow::Dot::none) properties.insert("icon-data", dotImage(row.dot));
    if (!row.keyEquivalent.empty()) {
        const DBusMenuShortcut shortcut{{"Control", QString::fromStdString(row.keyEquivalent)}};
        properties.insert("shortcut", QVariant::fromValue(shortcut));
    }
    if (!row.toolTip.empty()) {
        const auto toolTip = QString::fromStdString(support::legibleOutside(row.toolTip));
        properties.insert("accessible-desc", toolTip);
        // Not part of the protocol, but some hosts read it.
        properties.insert("tooltip", toolTip);
    }
    return properties;
}

}  // namespace larkspan::adapters
