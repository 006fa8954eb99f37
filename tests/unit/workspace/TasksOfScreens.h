#pragma once

#include <span>

#include "workspace/WholeProgram.h"

namespace larkspan::workspace {

/// A task that has been started, and the screen that it belongs to.
struct Started {
    std::weak_ptr<const void> screen;
    /// Leaves that screen for the one behind it.
    std::function<void()> leave;
    std::unique_ptr<Look> look;
};

struct TaskOfAScreen {
    const char* name;
    bool isInAPage;
    /// Prepares the screen and starts the task, without running it. The screen is looked at from the start of the task.
    Started (*start)(Program& program, int& looks);
};

/// Every task of every screen.
std::span<const TaskOfAScreen> tasksOfScreens();

}  // namespace larkspan::workspace
