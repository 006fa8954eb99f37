#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

#include "monitors/LatencyCurve.h"

namespace larkspan::bridge {

/// How a latency curve looks; lengths in pixels.
struct LatencyLook {
    QColor lineColor;
    QColor areaColor;
    double lineWidth = 2;
    /// Kept free on each side of the samples.
    double inset = 0;
    /// Of the ground that the area stands on.
    double cornerRadius = 0;
};

/// The curve as a line over an area between it and zero, which reaches to the ground if nothing is below zero; a sample
/// that is alone is a dot.
QImage latencyPicture(const monitors::LatencyCurve& curve, QSize size, const LatencyLook& look);

}  // namespace larkspan::bridge
