#pragma once

#include <string_view>
#include <vector>

#include "presentation/shapes/ActionButton.h"

namespace larkspan::presentation {

/// A button under a record, and its action.
template <typename Screen>
struct Command {
    ActionButton button;
    void (*run)(Screen& screen);
};

/// The buttons that a screen shows for its commands.
template <typename Screen>
std::vector<ActionButton> buttonsOf(const std::vector<Command<Screen>>& commands)
{
    std::vector<ActionButton> buttons;
    buttons.reserve(commands.size());
    for (const auto& command : commands) buttons.push_back(command.button);
    return buttons;
}

/// Performs the action of the button with this id; does nothing if there is none or it is disabled.
template <typename Screen>
void press(std::string_view id, const std::vector<Command<Screen>>& commands, Screen& screen)
{
    for (const auto& command : commands) {
        if (command.button.id == id && command.button.isEnabled) return command.run(screen);
    }
}

}  // namespace larkspan::presentation
