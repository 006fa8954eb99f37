#pragma once

#include <string>

namespace larkspan::presentation {

/// A link to an address outside the program.
struct Link {
    std::string symbol{};
    std::string title{};
    std::string subtitle{};
    /// A URL.
    std::string destination{};

    bool operator==(const Link&) const = default;
};

}  // namespace larkspan::presentation
