#include "adapters/tray/StatusIcon.h"

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace larkspan::adapters {

namespace {

/// The sizes of icons in panels, and the usual ones doubled.
constexpr std::array pixmapSizes{16, 22, 24, 32, 48, 64};

struct Row {
    const char* symbolName;
    const char* status;
};

constexpr std::array rows{
    Row{"checkmark.circle.fill", "operational"},
    Row{"exclamationmark.triangle.fill", "degraded"},
    Row{"xmark.circle.fill", "down"},
    Row{"wrench.and.screwdriver.fill", "maintenance"},
    Row{"exclamationmark.icloud.fill", "stale"},
    Row{"questionmark.circle", "unknown"},
};

QString iconName(const std::string& symbolName)
{
    const auto* const row = std::ranges::find(rows, symbolName, &Row::symbolName);
    const auto* const status = row == rows.end() ? rows.back().status : row->status;
    return QString("com.kestrune.larkspan-%1-symbolic").arg(QLatin1String(status));
}

/// In the theme that every other theme falls back to.
QString inTheme(const QString& iconName)
{
    return QStringLiteral("hicolor/symbolic/apps/%1.svg").arg(iconName);
}

/// Where the host's own theme has it.
bool isInstalled(const QString& iconName)
{
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, "icons/" + inTheme(iconName)).isEmpty();
}

/// The icons of a program that is installed where no theme looks, or was built and not installed.
QString folderBesideTheProgram(const QString& iconName)
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const auto* const place : {"../share/icons", "../icons"}) {
        const QDir folder(program.filePath(QLatin1String(place)));
        if (folder.exists(inTheme(iconName))) return folder.canonicalPath();
    }
    return {};
}

QImage silhouette(QSvgRenderer& renderer, int size, int margin, const QColor& color)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(image.rect()).marginsRemoved(QMarginsF(margin, margin, margin, margin)));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

/// Nobody recolours pixels, and no setting tells whether the panel is dark: it may differ from the programs. So the
/// shape has an edge of the opposite lightness, and is seen on either.
StatusNotifierPixmap drawn(QSvgRenderer& renderer, int size, const QColor& color, const QColor& edgeColor)
{
    const int edge = std::max(1, size / 16);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const auto edgeImage = silhouette(renderer, size, edge, edgeColor);
    for (int x = -edge; x <= edge; ++x) {
        for (int y = -edge; y <= edge; ++y) painter.drawImage(x, y, edgeImage);
    }
    painter.drawImage(0, 0, silhouette(renderer, size, edge, color));
    painter.end();

    const auto straight = image.convertToFormat(QImage::Format_ARGB32);
    StatusNotifierPixmap pixmap{size, size, QByteArray(straight.sizeInBytes(), Qt::Uninitialized)};
    qToBigEndian<quint32>(straight.constBits(), straight.sizeInBytes() / 4, pixmap.pixels.data());
    return pixmap;
}

}  // namespace

StatusIcon::StatusIcon(const std::string& symbolName, bool isOnDark)
    : name_(iconName(symbolName))
    , isOnDark_(isOnDark)
{
}

QString StatusIcon::themeName() const
{
    return isInstalled(name_) || !themePath().isEmpty() ? name_ : QString();
}

QString StatusIcon::themePath() const
{
    return isInstalled(name_) ? QString() : folderBesideTheProgram(name_);
}

StatusNotifierPixmaps StatusIcon::pixmaps() const
{
    StatusNotifierPixmaps pixmaps;
    if (name_.isEmpty() || isInstalled(name_)) return pixmaps;
    const QColor dark(0x1d, 0x21, 0x27);
    const QColor light(0xec, 0xee, 0xf1);
    QSvgRenderer renderer(QString(":/larkspan/tray/%1.svg").arg(name_));
    for (const int size : pixmapSizes) {
        pixmaps << drawn(renderer, size, isOnDark_ ? light : dark, isOnDark_ ? dark : light);
    }
    return pixmaps;
}

bool StatusIcon::looksLike(const StatusIcon& other) const
{
    return name_ == other.name_ && (isOnDark_ == other.isOnDark_ || isInstalled(name_));
}

}  // namespace larkspan::adapters
