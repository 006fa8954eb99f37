#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

#include "monitors/LatencyCurve.h"

namespace larkspan::bridge {

/// The look of a latency curve; lengths in pixels.
struct LatencyLook {
    QColor lineColor;
    QColor areaColor;
    double lineWidth = 2;
    /// The free space on each side of the samples.
    double inset = 0;
    /// The radius of the corners at the bottom of the area.
    double cornerRadius = 0;
};

/// The curve as a line over an area between it and zero, which reaches the bottom if nothing is below zero; a single
/// sample is a dot.
QImage latencyPicture(const monitors::LatencyCurve& curve, QSize size, const LatencyLook& look);

}  // namespace larkspan::bridge
