#include "adapters/tray/StatusIcon.h"

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

/// In the theme that every other theme falls back to, where this program's icons are installed.
bool isInstalled(const QString& iconName)
{
    const auto file = QStringLiteral("icons/hicolor/symbolic/apps/%1.svg").arg(iconName);
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, file).isEmpty();
}

StatusNotifierPixmap drawn(QSvgRenderer& renderer, int size, const QColor& color)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();

    const auto straight = image.convertToFormat(QImage::Format_ARGB32);
    StatusNotifierPixmap pixmap{size, size, QByteArray(straight.sizeInBytes(), Qt::Uninitialized)};
    qToBigEndian<quint32>(straight.constBits(), straight.sizeInBytes() / 4, pixmap.pixels.data());
    return pixmap;
}

}  // namespace

StatusIcon::StatusIcon(const std::string& symbolName, const QColor& color)
    : name_(iconName(symbolName))
    , color_(color)
{
}

QString StatusIcon::themeName() const
{
    return isInstalled(name_) ? name_ : QString();
}

StatusNotifierPixmaps StatusIcon::pixmaps() const
{
    StatusNotifierPixmaps pixmaps;
    if (name_.isEmpty() || isInstalled(name_)) return pixmaps;
    QSvgRenderer renderer(QString(":/larkspan/tray/%1.svg").arg(name_));
    for (const int size : pixmapSizes) pixmaps << drawn(renderer, size, color_);
    return pixmaps;
}

bool StatusIcon::looksLike(const StatusIcon& other) const
{
    return name_ == other.name_ && (color_ == other.color_ || isInstalled(name_));
}

}  // namespace larkspan::adapters
