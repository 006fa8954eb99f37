#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "gallery/Stage.h"

namespace larkspan::gallery {

/// A state of the program, and the settings for showing it.
struct Scene {
    std::string name;
    std::function<void(Stage&)> arrange;
    int width = 760;
    int height = 600;
    double fontPointSize = 10;
    /// The help of the toolbar's button that is pressed before the picture is taken; empty for none.
    std::string pressed = {};
    bool hasHighContrast = false;
};

inline void PrintTo(const Scene& scene, std::ostream* out)
{
    *out << scene.name;
}

/// Every state of every screen.
std::vector<Scene> scenes();

}  // namespace larkspan::gallery
