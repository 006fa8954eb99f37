#include "gallery/PanelIcons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <utility>

namespace larkspan::gallery {

namespace {

constexpr int groundSize = 40;
constexpr int gap = 8;
constexpr int iconSize = 22;
constexpr int radius = 8;

constexpr std::array statuses{"operational", "degraded", "down", "maintenance", "stale", "unknown"};

/// The icon as a panel recolours it.
QImage recoloured(const QString& file, const QColor& color, qreal scale)
{
    QImage icon(QSize(iconSize, iconSize) * scale, QImage::Format_ARGB32_Premultiplied);
    icon.setDevicePixelRatio(scale);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    QSvgRenderer(file).render(&painter, QRectF(0, 0, iconSize, iconSize));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(0, 0, iconSize, iconSize, color);
    return icon;
}

QImage onBothPanels(const QString& file)
{
    const qreal scale = qGuiApp->devicePixelRatio();
    QImage picture(QSize(2 * groundSize + gap, groundSize) * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor dark(0x1b, 0x1d, 0x21);
    const QColor light(0xe9, 0xeb, 0xee);
    int left = 0;
    for (const auto& [ground, icon] : {std::pair(light, dark), std::pair(dark, light)}) {
        painter.setBrush(ground);
        painter.drawRoundedRect(left, 0, groundSize, groundSize, radius, radius);
        constexpr int margin = (groundSize - iconSize) / 2;
        painter.drawImage(left + margin, margin, recoloured(file, icon, scale));
        left += groundSize + gap;
    }
    return picture;
}

}  // namespace

std::vector<PanelIcon> panelIcons()
{
    std::vector<PanelIcon> icons;
    for (const auto* const status : statuses) {
        const auto file = QStringLiteral(":/larkspan/tray/com.kestrune.larkspan-%1-symbolic.svg");
        icons.push_back({status, onBothPanels(file.arg(QLatin1String(status)))});
    }
    return icons;
}

}  // namespace larkspan::gallery
