#pragma once

#include <QByteArray>
#include <QColor>

#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// The colour of a row's dot. The menu's colours are known to the host only, so it contrasts with both white and black.
QColor dotColor(platform::MenuRow::Dot dot);

/// The dot as a PNG in the size of a menu icon, at twice its resolution; empty for no dot.
QByteArray dotImage(platform::MenuRow::Dot dot);

}  // namespace larkspan::adapters
