#include "MenuTest.h"

#include <QImage>
#include <QJsonDocument>

#include "adapters/tray/DotImage.h"

namespace larkspan::adapters {
namespace {

using platform::MenuRow;

QJsonObject json(const char* text)
{
    return QJsonDocument::fromJson(text).object();
}

TEST_F(MenuTest, ArrivesRowForRow)
{
    const auto host = panelWith(menuOf({page("p1", "Shop")}));

    const auto rows = host->rows();

    ASSERT_EQ(rows.size(), 9);
    EXPECT_EQ(
        propertiesAt(rows, 0), json(R"({"label": "Operational", "accessible-desc": "Operational", "enabled": false})"));
    EXPECT_EQ(propertiesAt(rows, 1),
        json(R"({"label": "Updated 5s ago", "accessible-desc": "Updated 5s ago", "enabled": false})"));
    EXPECT_EQ(propertiesAt(rows, 2), json(R"({"type": "separator"})"));
    EXPECT_EQ(propertiesAt(rows, 4), json(R"({"type": "separator"})"));
    EXPECT_EQ(propertiesAt(rows, 5),
        json(R"({"label": "Refresh", "accessible-desc": "Refresh", "shortcut": [["Control", "r"]]})"));
    EXPECT_EQ(propertiesAt(rows, 6),
        json(R"({"label": "Open Dashboard", "accessible-desc": "Open Dashboard", "shortcut": [["Control", "d"]]})"));
    EXPECT_EQ(propertiesAt(rows, 7), json(R"({"type": "separator"})"));
    EXPECT_EQ(
        propertiesAt(rows, 8), json(R"({"label": "Quit", "accessible-desc": "Quit", "shortcut": [["Control", "q"]]})"));
}

TEST_F(MenuTest, ThePagesDotIsItsOnlyColourAndIsAlsoSaidInWords)
{
    const auto host = panelWith(menuOf({page("p1", "Shop")}));

    auto properties = propertiesAt(host->rows(), 3);

    const auto dot = QByteArray::fromHex(properties.take("icon-data").toString().toLatin1());
    EXPECT_EQ(QImage::fromData(dot, "PNG"), QImage::fromData(dotImage(MenuRow::Dot::green), "PNG"));
    EXPECT_EQ(
        properties, json(R"({"label": "Shop", "accessible-desc": "Shop, Operational", "tooltip": "Operational"})"));
}

TEST_F(MenuTest, WhatAScreenReaderSaysForARowBeginsWithItsTitleAsItStands)
{
    const auto host = panelWith({page("p1", "snake_case")});

    EXPECT_EQ(propertiesAt(host->rows(), 0).value("accessible-desc"), "snake_case, Operational");
}

struct LabelRow {
    const char* title;
    const char* label;
};

class EachTitle : public MenuTest, public testing::WithParamInterface<LabelRow> {};

TEST_P(EachTitle, ArrivesWithoutAMarkedLetter)
{
    const auto host = panelWith({page("p1", GetParam().title)});

    EXPECT_EQ(propertiesAt(host->rows(), 0).value("label").toString(), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(Menu, EachTitle,
    testing::Values(LabelRow{"api_v2", "api__v2"}, LabelRow{"__init__", "____init____"}, LabelRow{"_", "__"},
        LabelRow{"Search & Find", "Search & Find"}, LabelRow{"<b>Bold</b>", "<b>Bold</b>"},
        LabelRow{"Übersicht 🚦", "Übersicht 🚦"}, LabelRow{"", ""}));

TEST_F(MenuTest, TwoPagesWithOneIdAreTwoRows)
{
    const auto host = panelWith({page("p1", "Shop"), page("p1", "Blog")});

    const auto rows = host->rows();

    ASSERT_EQ(rows.size(), 2);
    EXPECT_NE(idAt(rows, 0), idAt(rows, 1));
}

TEST_F(MenuTest, AChosenRowIsPerformedAsLastGiven)
{
    const auto host = panelWith(menuOf({page("p1", "Shop")}));
    const int id = idAt(host->rows(), 3);

    item.setMenu(menuOf({page("p1", "Shop, renamed")}));
    host->click(id);

    ASSERT_TRUE(peers::turnUntil([&] { return !performed.empty(); }));
    EXPECT_EQ(performed, std::vector{page("p1", "Shop, renamed")});
}

TEST_F(MenuTest, OfAGroupOfEventsTheFirstPressIsPerformedAndUnknownRowsAreNamed)
{
    const auto host = panelWith(menuOf({page("p1", "Shop")}));
    const auto rows = host->rows();

    const QJsonArray events{QJsonArray{idAt(rows, 3), "clicked", "", 0}, QJsonArray{idAt(rows, 5), "hovered", "", 0},
        QJsonArray{4711, "clicked", "", 0}, QJsonArray{idAt(rows, 8), "clicked", "", 0}};
    const auto unknown = host->callMenu("EventGroup", "a(isvu)", {QJsonValue(events)});

    EXPECT_EQ(unknown, QJsonArray{4711});
    ASSERT_TRUE(peers::turnUntil([&] { return !performed.empty(); }));
    peers::turnFor(std::chrono::milliseconds(50));
    EXPECT_EQ(performed, std::vector{page("p1", "Shop")});
    host->click(idAt(rows, 8));
    ASSERT_TRUE(peers::turnUntil([&] { return performed.size() == 2; }));
    EXPECT_EQ(performed[1].action, MenuRow::Action::quitApp);
}

TEST_F(MenuTest, OfThousandsOfPressesAtOnceOneIsPerformed)
{
    const auto host = panelWith(menuOf({page("p1", "Shop")}));
    const int row = idAt(host->rows(), 3);
    QJsonArray presses;
    for (int count = 0; count < 20'000; ++count) presses << QJsonArray{row, "clicked", "", 0};

    host->callMenu("EventGroup", "a(isvu)", {QJsonValue(presses)});

    ASSERT_TRUE(peers::turnUntil([&] { return !performed.empty(); }));
    peers::turnFor(std::chrono::milliseconds(50));
    EXPECT_EQ(performed.size(), 1U);
}

TEST_F(MenuTest, OnlyCommandsArePerformed)
{
    const auto host = panelWith(menuOf({page("p1", "Shop")}));
    const auto rows = host->rows();

    host->click(idAt(rows, 0));
    host->click(idAt(rows, 2));
    host->click(0);
    host->callMenu("Event", "isvu", {idAt(rows, 3), "hovered", "", 0});
    host->callMenu("Event", "isvu", {idAt(rows, 3), "Clicked", "", 0});
    host->callMenu("Event", "isvu", {0, "opened", "", 0});
    peers::turnFor(std::chrono::milliseconds(50));

    EXPECT_TRUE(performed.empty());
}

TEST_F(MenuTest, GivesTheNamedPropertiesOfTheNamedRows)
{
    const auto host = panelWith(menuOf({page("p1", "Shop")}));
    const int id = idAt(host->rows(), 3);

    const auto answer = host->callMenu("GetGroupProperties", "aias", {QJsonArray{id, id, 4711}, QJsonArray{"label"}});

    EXPECT_EQ(answer, QJsonArray({QJsonArray{id, QJsonObject{{"label", "Shop"}}}}));
    EXPECT_EQ(host->callMenu("GetProperty", "is", {id, "label"}), "Shop");
    EXPECT_EQ(host->callMenu("GetGroupProperties", "aias", {QJsonArray(), QJsonArray()}).toArray().size(), 10);
}

TEST_F(MenuTest, NeverNeedsAnUpdateBeforeItIsShown)
{
    const auto host = panelWith(menuOf({}));

    EXPECT_EQ(host->callMenu("AboutToShow", "i", {0}), false);
    EXPECT_EQ(host->callMenu("AboutToShowGroup", "ai", {QJsonValue(QJsonArray{0, 4711})}),
        QJsonArray({QJsonArray(), QJsonArray{4711}}));
}

}  // namespace
}  // namespace larkspan::adapters
