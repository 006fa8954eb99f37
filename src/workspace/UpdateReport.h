#pragma once

#include <optional>
#include <string>

#include "platform/Updater.h"

namespace larkspan::workspace {

/// What the dialog about updates says.
struct UpdateReport {
    std::string title;
    std::string text;
    bool showsProgress = false;

    /// Of a check that still runs if `finding` is absent.
    static UpdateReport of(const std::optional<platform::UpdateCheck>& finding);

    bool operator==(const UpdateReport&) const = default;
};

}  // namespace larkspan::workspace
