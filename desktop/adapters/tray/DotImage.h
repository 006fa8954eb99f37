#pragma once

#include <QByteArray>
#include <QColor>

#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// The colour of a row's dot. The menu's own colours are the host's secret, so it stands out from white and from
/// black alike.
QColor dotColor(platform::MenuRow::Dot dot);

/// The dot as a PNG of a menu icon's size, at twice its resolution; empty for none.
QByteArray dotImage(platform::MenuRow::Dot dot);

}  // namespace larkspan::adapters
