#include "platform/BoundedMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace larkspan::platform {

namespace {

using Rows = std::vector<MenuRow>;

MenuRow page(std::size_t number)
{
    return {.kind = MenuRow::Kind::command,
        .title = "Page " + std::to_string(number),
        .action = MenuRow::Action::openStatusPage,
        .representedObject = std::to_string(number)};
}

MenuRow information(std::string title)
{
    return {.kind = MenuRow::Kind::information, .title = std::move(title)};
}

MenuRow quit()
{
    return {.kind = MenuRow::Kind::command, .title = "Quit", .action = MenuRow::Action::quitApp};
}

/// Its pages are followed by `remark`, if it is not empty.
Rows menu(std::size_t pages, const std::string& remark = {})
{
    Rows rows{information("Operational"), {}};
    for (std::size_t number = 0; number < pages; ++number) rows.push_back(page(number));
    if (!remark.empty()) rows.push_back(information(remark));
    rows.insert(rows.end(), {MenuRow(), information("Active Incidents"), information("Slow"), MenuRow(), quit()});
    return rows;
}

TEST(BoundedMenu, UpToAThousandPagesAreAllInIt)
{
    EXPECT_EQ(boundedMenu({}), Rows());
    EXPECT_EQ(boundedMenu(menu(0)), menu(0));
    EXPECT_EQ(boundedMenu(menu(1000)), menu(1000));
}

TEST(BoundedMenu, OfMoreTheFirstThousandAreInItAndARowSaysHowManyMoreTheDashboardHas)
{
    EXPECT_EQ(boundedMenu(menu(1001)), menu(1000, "1 more in the dashboard"));
    EXPECT_EQ(boundedMenu(menu(150'000)), menu(1000, "149000 more in the dashboard"));
}

}  // namespace

}  // namespace larkspan::platform
