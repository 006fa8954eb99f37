#pragma once

#include "account/Component.h"
#include "json/Json.h"

namespace larkspan::simulator {

/// A component as the service sends it, alone and within its group.
Json wireComponent(const Component& component);

}  // namespace larkspan::simulator
