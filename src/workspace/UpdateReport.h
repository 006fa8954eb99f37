#pragma once

#include <optional>
#include <string>

#include "platform/Updater.h"

namespace larkspan::workspace {

/// The texts of the dialog about updates.
struct UpdateReport {
    std::string title;
    std::string text;
    bool showsProgress = false;
    /// The label of the button that closes the dialog, which ends no check.
    std::string closeLabel = "OK";

    /// The report of a check; of a running one if `finding` is absent.
    static UpdateReport of(const std::optional<platform::UpdateCheck>& finding);

    bool operator==(const UpdateReport&) const = default;
};

}  // namespace larkspan::workspace
