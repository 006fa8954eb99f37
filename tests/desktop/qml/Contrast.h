#pragma once

#include <QColor>

namespace larkspan {

/// How well two colours are told apart: 1 for the same colour, 21 for black and white.
double contrast(const QColor& one, const QColor& other);

/// What is seen where `above` lies over `below`; translucent as far as its alpha says.
QColor over(const QColor& below, const QColor& above);

}  // namespace larkspan
