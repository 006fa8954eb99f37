#pragma once

#include <QVariantMap>

#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// How `com.canonical.dbusmenu` describes a row. What has the protocol's default value is left out.
QVariantMap menuRowProperties(const platform::MenuRow& row);

}  // namespace larkspan::adapters
