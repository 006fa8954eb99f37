#include "gallery/DesktopFonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace larkspan::gallery {

namespace {

struct DesktopFont {
    const char* family;
    const char* package;
};

/// The same families as in `fonts.conf`: the interface font, then those of what it does not have.
constexpr DesktopFont desktopFonts[] = {
    {"Inter", "fonts-inter"},
    {"Noto Sans Arabic UI", "fonts-noto-ui-core"},
    {"Noto Sans CJK JP", "fonts-noto-cjk"},
    {"Noto Color Emoji", "fonts-noto-color-emoji"},
};

}  // namespace

void chooseDesktopFonts()
{
    qputenv("FONTCONFIG_FILE", LARKSPAN_GALLERY_FONTS);
}

void useDesktopFonts()
{
    const auto missing = missingDesktopFonts(QFontDatabase::families());
    if (!missing.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(missing));
        std::exit(2);
    }
    QGuiApplication::setFont(QFont(QString::fromLatin1(desktopFonts[0].family)));
}

QString missingDesktopFonts(const QStringList& families)
{
    QStringList sentences;
    for (const auto& font : desktopFonts) {
        const auto family = QString::fromLatin1(font.family);
        if (families.contains(family)) continue;
        sentences.append(
            QStringLiteral("The pictures need the font \"%1\": install the package %2, as ./dev setup does.")
                .arg(family, QString::fromLatin1(font.package)));
    }
    return sentences.join(u'\n');
}

}  // namespace larkspan::gallery
