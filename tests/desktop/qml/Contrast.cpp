#include "Contrast.h"

#include <algorithm>
#include <cmath>

namespace larkspan {

namespace {

double channel(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor over(const QColor& below, const QColor& above)
{
    const auto share = above.alphaF();
    const auto mixed = [share](float under, float upon) { return under * (1 - share) + upon * share; };
    return QColor::fromRgbF(
        mixed(below.redF(), above.redF()), mixed(below.greenF(), above.greenF()), mixed(below.blueF(), above.blueF()));
}

}  // namespace larkspan
