#include "adapters/tray/MenuRowProperties.h"

#include <QString>

#include "adapters/tray/DBusMenuTypes.h"
#include "adapters/tray/DotImage.h"
#include "support/LegibleOutside.h"

namespace larkspan::adapters {

namespace {

QString legible(const std::string& text)
{
    return QString::fromStdString(support::legibleOutside(text));
}

/// A single underscore marks the mnemonic and is not shown; two are shown as one. An ampersand has no meaning here:
/// hosts whose toolkit uses it as a mark double it themselves.
QString label(const std::string& title)
{
    return legible(title).replace('_', "__");
}

/// What a screen reader says for the row. Panels of GTK read it instead of the label, and without it go on with the
/// first label that the row has had.
QString description(const platform::MenuRow& row)
{
    const auto title = legible(row.title);
    return row.toolTip.empty() ? title : title + ", " + legible(row.toolTip);
}

}  // namespace

QVariantMap menuRowProperties(const platform::MenuRow& row)
{
    using Kind = platform::MenuRow::Kind;
    if (row.kind == Kind::separator) return {{"type", "separator"}};

    QVariantMap properties{{"label", label(row.title)}, {"accessible-desc", description(row)}};
    if (row.kind == Kind::information) properties.insert("enabled", false);
    if (row.dot != platform::MenuRow::Dot::none) properties.insert("icon-data", dotImage(row.dot));
    if (!row.keyEquivalent.empty()) {
        // Not by braces, with which Qt would write where it got no memory.
        DBusMenuShortcut shortcut;
        shortcut << (QStringList() << "Control" << QString::fromStdString(row.keyEquivalent));
        properties.insert("shortcut", QVariant::fromValue(shortcut));
    }
    // Not part of the protocol, but some hosts read it.
    if (!row.toolTip.empty()) properties.insert("tooltip", legible(row.toolTip));
    return properties;
}

}  // namespace larkspan::adapters
