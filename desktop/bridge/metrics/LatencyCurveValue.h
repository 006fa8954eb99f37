#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "monitors/LatencyCurve.h"

namespace larkspan::bridge {

/// `monitors::LatencyCurve` for QML; the samples themselves pass through it to the item that draws them.
struct LatencyCurveValue {
    Q_GADGET
    QML_VALUE_TYPE(latencyCurve)
    Q_PROPERTY(bool isShown READ isShown)
    Q_PROPERTY(double lowestValue READ lowestValue)
    Q_PROPERTY(double highestValue READ highestValue)

public:
    std::shared_ptr<const monitors::LatencyCurve> curve{};

    bool isShown() const { return curve != nullptr; }
    double lowestValue() const { return curve ? curve->domain.lower : 0; }
    double highestValue() const { return curve ? curve->domain.upper : 0; }

    bool operator==(const LatencyCurveValue&) const = default;
};

}  // namespace larkspan::bridge
