#include <string>
#include <vector>

#include "MenuTest.h"

namespace larkspan::adapters {
namespace {

using platform::MenuRow;

/// The menu of an account with more pages than a message of the bus has room for.
class HugeMenuTest : public MenuTest {
protected:
    static std::vector<MenuRow> menuOfPages(int count, const std::string& name)
    {
        std::vector<MenuRow> pages;
        for (int number = 0; number < count; ++number) {
            pages.push_back(page("p" + std::to_string(number), name + std::to_string(number)));
        }
        return menuOf(pages);
    }
};

TEST_F(HugeMenuTest, OfAHundredAndFiftyThousandPagesTheFirstThousandAreShownAndTheRestIsCounted)
{
    const auto host = panelWith(menuOfPages(150'000, "Page "));

    const auto rows = host->rows();

    ASSERT_EQ(rows.size(), 1009);
    EXPECT_EQ(propertiesAt(rows, 3).value("label"), "Page 0");
    EXPECT_EQ(propertiesAt(rows, 1002).value("label"), "Page 999");
    EXPECT_EQ(propertiesAt(rows, 1003).value("label"), "149000 more in the dashboard");
    EXPECT_EQ(propertiesAt(rows, 1003).value("enabled"), false);
    EXPECT_EQ(propertiesAt(rows, 1004).value("type"), "separator");
    EXPECT_EQ(propertiesAt(rows, 1008).value("label"), "Quit");
}

TEST_F(HugeMenuTest, TheBusStillCarriesTheProgramWhenEachOfItsRowsIsLongAndChanges)
{
    const auto host = panelWith(menuOfPages(5'000, std::string(1'000, 'x')));
    ASSERT_EQ(host->rows().size(), 1009);

    item.setMenu(menuOfPages(5'000, std::string(1'000, 'y')));
    EXPECT_EQ(host->takeSignalNames(), QStringList{"ItemsPropertiesUpdated"});
    EXPECT_EQ(host->callMenu("GetGroupProperties", "aias", {QJsonArray(), QJsonArray()}).toArray().size(), 1010);

    host->click(idAt(host->rows(), 1008));
    ASSERT_TRUE(peers::turnUntil([&] { return !performed.empty(); }));
    EXPECT_EQ(performed.front().action, MenuRow::Action::quitApp);
}

}  // namespace
}  // namespace larkspan::adapters
