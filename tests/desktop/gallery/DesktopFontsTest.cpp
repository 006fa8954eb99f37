#include "gallery/DesktopFonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace larkspan::gallery {

namespace {

TEST(DesktopFonts, AMissingOneIsToldInASentenceThatNamesItsPackage)
{
    const QStringList withoutEmoji{
        QStringLiteral("Inter"), QStringLiteral("Noto Sans Arabic UI"), QStringLiteral("Noto Sans CJK JP")};
    EXPECT_EQ(missingDesktopFonts(withoutEmoji).toStdString(),
        "The pictures need the font \"Noto Color Emoji\": install the package fonts-noto-color-emoji, as ./dev setup "
        "does.");
    EXPECT_EQ(missingDesktopFonts({}).count(u'\n'), 3) << "each on a line of its own";
    EXPECT_TRUE(missingDesktopFonts({}).contains(QStringLiteral("fonts-inter")));
}

TEST(DesktopFonts, AreAllThatThePicturesSee)
{
    const auto families = QFontDatabase::families();
    EXPECT_EQ(missingDesktopFonts(families), QString());
    EXPECT_FALSE(families.contains(QStringLiteral("DejaVu Sans"))) << "although it is installed for the program";
}

TEST(DesktopFonts, HaveTheInterfaceFontWithItsOwnWeights)
{
    auto font = QGuiApplication::font();
    EXPECT_EQ(QFontInfo(font).family(), QStringLiteral("Inter"));
    font.setWeight(QFont::DemiBold);
    EXPECT_EQ(QFontInfo(font).weight(), QFont::DemiBold);
}

}  // namespace

}  // namespace larkspan::gallery
