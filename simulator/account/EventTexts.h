#pragma once

#include <cstddef>

namespace larkspan::simulator {

/// What somebody on duty writes.
struct EventText {
    const char* title;
    const char* message;
};

/// A believable one for each number; they repeat after a while.
const EventText& incidentText(std::size_t number);
const EventText& maintenanceText(std::size_t number);

}  // namespace larkspan::simulator
