#pragma once

#include <cstddef>

namespace larkspan::simulator {

/// Texts as people on call write them.
struct EventText {
    const char* title;
    const char* message;
};

/// A realistic text for each number; the texts repeat after a while.
const EventText& incidentText(std::size_t number);
const EventText& maintenanceText(std::size_t number);

}  // namespace larkspan::simulator
