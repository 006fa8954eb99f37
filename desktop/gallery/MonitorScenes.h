#pragma once

#include <vector>

#include "gallery/Scene.h"

namespace larkspan::gallery {

/// The monitors of an opened page: their list, what is open in its rows, and one of them.
std::vector<Scene> monitorScenes();

}  // namespace larkspan::gallery
