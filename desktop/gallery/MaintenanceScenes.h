#pragma once

#include <vector>

#include "gallery/Scene.h"

namespace larkspan::gallery {

/// The tab "Maintenances" of an opened page, one maintenance and the form of a new one, in every state.
std::vector<Scene> maintenanceScenes();

}  // namespace larkspan::gallery
