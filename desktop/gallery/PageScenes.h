#pragma once

#include <vector>

#include "gallery/Scene.h"

namespace larkspan::gallery {

/// A page, opened: its tabs and its overview.
std::vector<Scene> pageScenes();

}  // namespace larkspan::gallery
