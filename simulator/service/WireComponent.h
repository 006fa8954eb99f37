#pragma once

#include "account/Component.h"
#include "json/JsonForward.h"

namespace larkspan::simulator {

/// A component as the service sends it, alone or within its group.
Json wireComponent(const Component& component);

}  // namespace larkspan::simulator
