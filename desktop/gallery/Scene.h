#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/AppStateManager.h"

namespace larkspan::gallery {

/// A state of the account, and how it looks when a person sees it.
struct Scene {
    std::string name;
    std::function<void(core::AppStateManager&)> arrange;
    int width = 760;
    int height = 600;
    double fontPointSize = 10;
};

/// Every state of every screen.
std::vector<Scene> scenes();

}  // namespace larkspan::gallery
