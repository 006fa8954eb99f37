#include "adapters/tray/StatusNotifierItem.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPalette>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

#include "TrayTest.h"

namespace larkspan::adapters {
namespace {

using platform::MenuRow;

/// A desktop that has the program's icons installed, or lacks them.
class StatusNotifierItemTest : public TrayTest {
protected:
    StatusNotifierItemTest()
    {
        // Hides what is installed on this machine.
        qputenv("XDG_DATA_HOME", "/nowhere");
        qputenv("XDG_DATA_DIRS", "/nowhere");
    }

    ~StatusNotifierItemTest() override { usePalette(Qt::white, Qt::black); }

    static void installIcons() { qputenv("XDG_DATA_DIRS", "/nowhere:" LARKSPAN_DATA); }

    static void usePalette(const QColor& window, const QColor& text)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        QGuiApplication::setPalette(palette);
    }

    std::unique_ptr<peers::TrayHost> panelWith(const std::string& symbolName)
    {
        item.setButton({.symbolName = symbolName, .accessibilityDescription = "In words", .toolTip = "Kestrune: fine"});
        show();
        return panel();
    }
};

QImage image(const QJsonValue& pixmap)
{
    const auto pixels = QByteArray::fromHex(pixmap.toArray().at(2).toString().toLatin1());
    QImage image(pixmap.toArray().at(0).toInt(), pixmap.toArray().at(1).toInt(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const auto* const bytes = reinterpret_cast<const uchar*>(pixels.data()) + 4 * (y * image.width() + x);
            image.setPixelColor(x, y, QColor(bytes[1], bytes[2], bytes[3], bytes[0]));
        }
    }
    return image;
}

struct IconRow {
    const char* symbolName;
    const char* status;
};

constexpr std::array icons{IconRow{"checkmark.circle.fill", "operational"},
    IconRow{"exclamationmark.triangle.fill", "degraded"}, IconRow{"xmark.circle.fill", "down"},
    IconRow{"wrench.and.screwdriver.fill", "maintenance"}, IconRow{"exclamationmark.icloud.fill", "stale"},
    IconRow{"questionmark.circle", "unknown"}, IconRow{"no.such.symbol", "unknown"}};

class EachStatus : public StatusNotifierItemTest, public testing::WithParamInterface<IconRow> {};

TEST_P(EachStatus, IsTheInstalledIconOfItsName)
{
    installIcons();
    const auto host = panelWith(GetParam().symbolName);

    const auto properties = host->item();

    EXPECT_EQ(properties.value("IconName"), QString("com.kestrune.larkspan-%1-symbolic").arg(GetParam().status));
    EXPECT_EQ(properties.value("IconThemePath"), "");
    EXPECT_EQ(properties.value("IconPixmap"), QJsonArray());
}

TEST_P(EachStatus, IsFoundBesideAProgramThatIsNotInstalled)
{
    const auto host = panelWith(GetParam().symbolName);

    const auto properties = host->item();

    const auto name = properties.value("IconName").toString();
    EXPECT_EQ(name, QString("com.kestrune.larkspan-%1-symbolic").arg(GetParam().status));
    const auto folder = properties.value("IconThemePath").toString();
    EXPECT_TRUE(QFile::exists(folder + "/hicolor/symbolic/apps/" + name + ".svg")) << qPrintable(folder);
}

TEST_P(EachStatus, IsPaintedInEachSizeForAHostThatLooksForNoFile)
{
    const auto host = panelWith(GetParam().symbolName);

    const auto properties = host->item();

    std::vector<int> sizes;
    for (const auto& pixmap : properties.value("IconPixmap").toArray()) {
        const auto icon = image(pixmap);
        EXPECT_EQ(icon.height(), icon.width());
        sizes.push_back(icon.width());
        EXPECT_NE(icon.convertToFormat(QImage::Format_Alpha8).constBits()[0], 0xff);
    }
    EXPECT_EQ(sizes, (std::vector{16, 22, 24, 32, 48, 64}));
}

INSTANTIATE_TEST_SUITE_P(Icon, EachStatus, testing::ValuesIn(icons));

TEST_F(StatusNotifierItemTest, EachStatusHasAShapeOfItsOwn)
{
    const auto host = panelWith("");
    std::set<QString> shapes;

    for (const auto& icon : icons) {
        item.setButton({.symbolName = icon.symbolName});
        shapes.insert(host->item().value("IconPixmap").toArray().at(0).toArray().at(2).toString());
    }

    EXPECT_EQ(shapes.size(), 6U);
}

double luminance(const QColor& color)
{
    const auto linear
        = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The part of the shape's pixels that can be told from this ground, by 3:1.
double legiblePart(const QImage& icon, const QColor& ground)
{
    int opaque = 0;
    int legible = 0;
    const double lightOfGround = luminance(ground);
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const auto color = icon.pixelColor(x, y);
            if (color.alpha() < 0x80) continue;
            ++opaque;
            const auto [less, more] = std::minmax({luminance(color), lightOfGround});
            legible += (more + 0.05) / (less + 0.05) >= 3;
        }
    }
    return static_cast<double>(legible) / opaque;
}

TEST_P(EachStatus, ThePaintedIconIsSeenOnADarkPanelAndOnALightOneWhateverTheProgramsColours)
{
    const auto host = panelWith(GetParam().symbolName);
    for (const auto& [window, text] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)}) {
        usePalette(window, text);
        for (const auto& pixmap : host->item().value("IconPixmap").toArray()) {
            const auto icon = image(pixmap);
            for (const auto& ground : {QColor(0x1b, 0x1d, 0x21), QColor(0xf4, 0xf5, 0xf7)}) {
                EXPECT_GE(legiblePart(icon, ground), 0.2) << icon.width() << qPrintable(ground.name());
            }
        }
    }
}

TEST_F(StatusNotifierItemTest, ThePaintedIconFollowsTheDesktopsColours)
{
    const auto host = panelWith("checkmark.circle.fill");
    // The left edge of the icon is in the disk, its centre in the mark.
    const auto color = [&] {
        const auto pixmaps = host->item().value("IconPixmap").toArray();
        return image(pixmaps.at(5)).pixelColor(9, 32);
    };
    EXPECT_EQ(color(), QColor(0x1d, 0x21, 0x27));

    usePalette(Qt::black, Qt::white);

    EXPECT_EQ(color(), QColor(0xec, 0xee, 0xf1));
    EXPECT_EQ(host->takeSignalNames(), QStringList("NewIcon"));
}

TEST_F(StatusNotifierItemTest, TheInstalledIconIsTheHostsToColour)
{
    installIcons();
    const auto host = panelWith("checkmark.circle.fill");

    usePalette(Qt::black, Qt::white);

    EXPECT_EQ(host->takeSignalNames(), QStringList());
}

TEST_F(StatusNotifierItemTest, SaysWhatItIs)
{
    const auto host = panelWith("checkmark.circle.fill");

    const auto properties = host->item();

    EXPECT_EQ(properties.value("Category"), "SystemServices");
    EXPECT_EQ(properties.value("Id"), "com.kestrune.larkspan");
    EXPECT_EQ(properties.value("Title"), "Kestrune");
    EXPECT_EQ(properties.value("Status"), "Active");
    EXPECT_EQ(properties.value("ItemIsMenu"), true);
    EXPECT_EQ(properties.value("Menu"), "/MenuBar");
    EXPECT_EQ(properties.value("IconAccessibleDesc"), "In words");
    // Some hosts show only the first text of a tool tip, and hosts read the second one as markup. Without a second one,
    // some repeat the icon's description there.
    EXPECT_EQ(properties.value("ToolTip"), QJsonArray({"", QJsonArray(), "Kestrune: fine", "Kestrune"}));
}

TEST_F(StatusNotifierItemTest, TellsOnlyOfWhatChanged)
{
    const auto host = panelWith("checkmark.circle.fill");
    platform::StatusItem::Button button{
        .symbolName = "checkmark.circle.fill", .accessibilityDescription = "In words", .toolTip = "Kestrune: fine"};

    item.setButton(button);
    EXPECT_EQ(host->takeSignalNames(), QStringList());

    button.toolTip = "Kestrune: slow";
    item.setButton(button);
    EXPECT_EQ(host->takeSignalNames(), QStringList("NewToolTip"));

    button.symbolName = "exclamationmark.triangle.fill";
    item.setButton(button);
    EXPECT_EQ(host->takeSignalNames(), QStringList("NewIcon"));
}

TEST_F(StatusNotifierItemTest, PressingTheItemItselfOpensTheDashboardWithTheTokenOfThePress)
{
    const auto host = panelWith("checkmark.circle.fill");
    QStringList tokens;
    QObject::connect(&item, &StatusNotifierItem::activationTokenProvided, [&](const QString& token) {
        EXPECT_TRUE(performed.empty());
        tokens << token;
    });

    host->callItem("ProvideXdgActivationToken", "s", {"token-of-the-press"});
    host->callItem("Activate", "ii", {10, 20});

    ASSERT_TRUE(peers::turnUntil([&] { return !performed.empty(); }));
    EXPECT_EQ(performed.front().action, MenuRow::Action::openDashboard);
    EXPECT_EQ(tokens, QStringList("token-of-the-press"));
    EXPECT_EQ(host->takeSignalNames(), QStringList());
}

TEST_F(StatusNotifierItemTest, OtherPressesDoNothing)
{
    const auto host = panelWith("checkmark.circle.fill");

    EXPECT_TRUE(host->callItem("SecondaryActivate", "ii", {1, 1}).toObject().isEmpty());
    EXPECT_TRUE(host->callItem("ContextMenu", "ii", {1, 1}).toObject().isEmpty());
    EXPECT_TRUE(host->callItem("Scroll", "is", {120, "vertical"}).toObject().isEmpty());
    peers::turnFor(std::chrono::milliseconds(50));

    EXPECT_TRUE(performed.empty());
}

}  // namespace
}  // namespace larkspan::adapters
