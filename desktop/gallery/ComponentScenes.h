#pragma once

#include <vector>

#include "gallery/Scene.h"

namespace larkspan::gallery {

/// A page's components: the list, one of them, and its editor.
std::vector<Scene> componentScenes();

}  // namespace larkspan::gallery
