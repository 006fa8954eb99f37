#pragma once

#include <string>

#include "model/records/Maintenance.h"
#include "platform/LocaleText.h"
#include "presentation/shapes/Pill.h"

namespace larkspan::maintenances {

/// One maintenance in the list of its page.
struct MaintenanceRow {
    std::string id{};
    std::string title{};
    /// Its tone is also the dot's.
    presentation::Pill status{};
    /// The day of the planned start; empty if there is none.
    std::string date{};

    static MaintenanceRow of(const model::Maintenance& maintenance, const platform::LocaleText& locale);

    bool operator==(const MaintenanceRow&) const = default;
};

}  // namespace larkspan::maintenances
