#include "bridge/menu/MenuRowValue.h"

#include "bridge/values/Words.h"

namespace larkspan::bridge {

using platform::MenuRow;

namespace {

Tone::Value toneOfDot(MenuRow::Dot dot)
{
    switch (dot) {
    case MenuRow::Dot::green: return Tone::Green;
    case MenuRow::Dot::orange: return Tone::Orange;
    case MenuRow::Dot::red: return Tone::Red;
    case MenuRow::Dot::blue: return Tone::Blue;
    case MenuRow::Dot::gray:
    case MenuRow::Dot::none: break;
    }
    return Tone::Gray;
}

QString shortcutText(const std::string& key)
{
    return key.empty() ? QString() : QStringLiteral("Ctrl+") + words(key).toUpper();
}

}  // namespace

MenuRowValue MenuRowValue::of(const MenuEntry& entry)
{
    const auto& row = entry.row;
    return {words(row.title), row.kind == MenuRow::Kind::separator, row.kind == MenuRow::Kind::command,
        row.dot != MenuRow::Dot::none, toneOfDot(row.dot), words(row.toolTip), shortcutText(row.keyEquivalent)};
}

}  // namespace larkspan::bridge
