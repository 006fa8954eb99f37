#include "adapters/StatusItems.h"

#include <gtest/gtest.h>

namespace larkspan::adapters {
namespace {

using platform::MenuRow;

struct Place : platform::StatusItem {
    bool isShown() const override { return hasPanel; }
    void onShownChanged(std::function<void()> given) override { changed = std::move(given); }
    void show(std::function<void(const MenuRow& row)> given) override { perform = std::move(given); }
    void setButton(const Button& given) override { button = given; }
    void setMenu(const std::vector<MenuRow>& given) override { rows = given; }

    std::function<void()> changed;
    std::function<void(const MenuRow& row)> perform;
    Button button;
    std::vector<MenuRow> rows;
    bool hasPanel = false;
};

TEST(StatusItems, AreShownWhereOneOfThemIs)
{
    Place panel;
    Place window;
    const StatusItems items({panel, window});
    EXPECT_FALSE(items.isShown());
    panel.hasPanel = true;
    EXPECT_TRUE(items.isShown());
}

TEST(StatusItems, TellWhenAnyOfThePlacesComesOrGoes)
{
    Place panel;
    Place window;
    StatusItems items({panel, window});
    int changes = 0;
    items.onShownChanged([&changes] { ++changes; });
    panel.changed();
    window.changed();
    EXPECT_EQ(changes, 2);
}

TEST(StatusItems, EachPlaceShowsTheSameAndPerformsItsRows)
{
    Place panel;
    Place window;
    StatusItems items({panel, window});
    std::vector<MenuRow> performed;
    const MenuRow quit{.kind = MenuRow::Kind::command, .title = "Quit", .action = MenuRow::Action::quitApp};

    items.show([&](const MenuRow& row) { performed.push_back(row); });
    items.setButton({.symbolName = "checkmark.circle.fill"});
    items.setMenu({quit});
    panel.perform(quit);
    window.perform(quit);

    for (const auto* const place : {&panel, &window}) {
        EXPECT_EQ(place->button.symbolName, "checkmark.circle.fill");
        EXPECT_EQ(place->rows, std::vector{quit});
    }
    EXPECT_EQ(performed.size(), 2);
}

TEST(StatusItems, APlaceHearsOnlyOfWhatDiffers)
{
    Place panel;
    StatusItems items({panel});
    const MenuRow quit{.kind = MenuRow::Kind::command, .title = "Quit", .action = MenuRow::Action::quitApp};
    items.setButton({.symbolName = "checkmark.circle.fill"});
    items.setMenu({quit});
    panel.button = {};
    panel.rows = {};

    items.setButton({.symbolName = "checkmark.circle.fill"});
    items.setMenu({quit});
    EXPECT_EQ(panel.button.symbolName, "");
    EXPECT_TRUE(panel.rows.empty());

    items.setMenu({quit, quit});
    EXPECT_EQ(panel.rows.size(), 2);
}

}  // namespace
}  // namespace larkspan::adapters
