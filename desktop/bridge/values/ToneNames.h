#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "presentation/shapes/Tone.h"

namespace larkspan::bridge {

/// `presentation::Tone` under the names used in QML; the theme has a colour for each. Values for QML hold it as an
/// integer: QML compiled by Qt 6.4 cannot read an enumeration from a value.
namespace Tone {
Q_NAMESPACE
QML_ELEMENT

enum Value {
    Primary = static_cast<int>(presentation::Tone::primary),
    Secondary = static_cast<int>(presentation::Tone::secondary),
    Green = static_cast<int>(presentation::Tone::green),
    Orange = static_cast<int>(presentation::Tone::orange),
    Yellow = static_cast<int>(presentation::Tone::yellow),
    Red = static_cast<int>(presentation::Tone::red),
    Blue = static_cast<int>(presentation::Tone::blue),
    Gray = static_cast<int>(presentation::Tone::gray),
};
Q_ENUM_NS(Value)
}  // namespace Tone

inline Tone::Value toneOf(presentation::Tone tone)
{
    return static_cast<Tone::Value>(tone);
}

}  // namespace larkspan::bridge
