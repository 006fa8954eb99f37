#pragma once

#include <vector>

#include "gallery/Scene.h"

namespace larkspan::gallery {

/// An opened page: its tabs and its overview.
std::vector<Scene> pageScenes();

}  // namespace larkspan::gallery
