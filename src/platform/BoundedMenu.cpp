#include "platform/BoundedMenu.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace larkspan::platform {

namespace {

constexpr std::size_t mostPages = 1000;

MenuRow remark(std::size_t missing)
{
    return {.kind = MenuRow::Kind::information, .title = std::to_string(missing) + " more in the dashboard"};
}

}  // namespace

std::vector<MenuRow> boundedMenu(const std::vector<MenuRow>& rows)
{
    const auto pages
        = static_cast<std::size_t>(std::ranges::count(rows, MenuRow::Action::openStatusPage, &MenuRow::action));
    if (pages <= mostPages) return rows;

    std::vector<MenuRow> bounded;
    bounded.reserve(rows.size() - pages + mostPages + 1);
    std::size_t seen = 0;
    for (const auto& row : rows) {
        const bool isPage = row.action == MenuRow::Action::openStatusPage;
        if (isPage) ++seen;
        if (!isPage || seen <= mostPages) bounded.push_back(row);
        if (isPage && seen == mostPages) bounded.push_back(remark(pages - mostPages));
    }
    return bounded;
}

}  // namespace larkspan::platform
