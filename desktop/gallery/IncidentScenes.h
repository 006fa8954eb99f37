#pragma once

#include <vector>

#include "gallery/Scene.h"

namespace larkspan::gallery {

/// A page's incidents: the list, one of them, and the form of a new one.
std::vector<Scene> incidentScenes();

}  // namespace larkspan::gallery
