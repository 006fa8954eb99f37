#include "core/WindowMenu.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace larkspan::core {

using platform::MenuRow;
using Kind = MenuRow::Kind;
using Row = WindowMenu::Row;
using Look = Row::Look;
using Rows = std::span<const MenuRow>;

namespace {

/// The first separator from `begin` on; the end if there is none.
Rows::iterator separatorFrom(Rows::iterator begin, Rows::iterator end)
{
    return std::ranges::find(begin, end, Kind::separator, &MenuRow::kind);
}

Rows::iterator past(Rows::iterator separator, Rows::iterator end)
{
    return separator == end ? end : std::next(separator);
}

Row shown(const MenuRow& row)
{
    return {.row = row, .ending = row.dot == MenuRow::Dot::none ? std::string{} : row.toolTip};
}

std::vector<Row> shown(Rows rows)
{
    std::vector<Row> made;
    made.reserve(rows.size() + 1);
    std::ranges::transform(rows, std::back_inserter(made), [](const MenuRow& row) { return shown(row); });
    return made;
}

std::vector<Row> summaryOf(Rows rows, const std::string& statusSymbol)
{
    auto made = shown(rows);
    if (!made.empty()) {
        made.front().look = Look::status;
        made.front().symbolName = statusSymbol;
    }
    return made;
}

/// The separator, the heading and the titles.
std::vector<Row> incidentsOf(Rows rows)
{
    auto made = shown(rows);
    for (std::size_t at = 1; at < made.size(); ++at) made[at].look = at == 1 ? Look::heading : Look::text;
    return made;
}

std::vector<Row> commandsOf(Rows rows)
{
    auto made = shown(rows);
    const auto isSeparator = [](const Row& each) { return each.row.kind == Kind::separator; };
    const auto last = std::ranges::find_if(made.rbegin(), made.rend(), isSeparator);
    made.insert(last == made.rend() ? made.end() : std::prev(last.base()), Row{.row = aboutRow()});
    return made;
}

}  // namespace

WindowMenu WindowMenu::of(const std::vector<MenuRow>& rows, const std::string& statusSymbol)
{
    const Rows all = rows;
    const auto end = all.end();
    const auto pages = past(separatorFrom(all.begin(), end), end);
    const auto incidents = separatorFrom(pages, end);
    const auto first = past(incidents, end);
    const bool hasIncidents = first != end && first->kind == Kind::information;
    const auto commands = hasIncidents ? separatorFrom(first, end) : incidents;
    return {.summary = summaryOf(Rows(all.begin(), pages), statusSymbol),
        .pages = shown(Rows(pages, incidents)),
        .incidents = incidentsOf(Rows(incidents, commands)),
        .commands = commandsOf(Rows(commands, end))};
}

MenuRow aboutRow()
{
    return {.kind = Kind::command, .title = "About Kestrune"};
}

}  // namespace larkspan::core
