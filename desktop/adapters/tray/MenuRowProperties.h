#pragma once

#include <QVariantMap>

#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// The properties of a row in `com.canonical.dbusmenu`, without those that have the protocol's default value.
QVariantMap menuRowProperties(const platform::MenuRow& row);

}  // namespace larkspan::adapters
