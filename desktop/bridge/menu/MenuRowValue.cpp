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

QString endingText(const core::WindowMenu::Row& shown)
{
    const auto& key = shown.row.keyEquivalent;
    return key.empty() ? words(shown.ending) : QStringLiteral("Ctrl+") + words(key).toUpper();
}

}  // namespace

MenuRowValue MenuRowValue::of(const MenuEntry& entry)
{
    using Look = core::WindowMenu::Row::Look;
    const auto& row = entry.shown.row;
    const auto look = entry.shown.look;
    return {.title = words(row.title),
        .isSeparator = row.kind == MenuRow::Kind::separator,
        .isCommand = row.kind == MenuRow::Kind::command,
        .hasDot = row.dot != MenuRow::Dot::none,
        .tone = toneOfDot(row.dot),
        .help = words(row.toolTip),
        .symbol = words(entry.shown.symbolName),
        .isStatus = look == Look::status,
        .isHeading = look == Look::heading,
        .isText = look == Look::text,
        .ending = endingText(entry.shown)};
}

}  // namespace larkspan::bridge
