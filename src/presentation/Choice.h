#pragma once

#include <string>

namespace larkspan::presentation {

/// One entry of a picker; an empty id stands for no selection.
struct Choice {
    std::string id{};
    std::string name{};

    bool operator==(const Choice&) const = default;
};

}  // namespace larkspan::presentation
