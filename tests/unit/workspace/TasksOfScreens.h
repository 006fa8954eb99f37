#pragma once

#include <ostream>
#include <span>

#include "workspace/WholeProgram.h"

namespace larkspan::workspace {

/// A task that has been started, and the screen that it belongs to.
struct Started {
    std::weak_ptr<const void> screen;
    /// Leaves that screen for the one behind it.
    std::function<void()> leave;
    std::unique_ptr<Look> look;
    /// For an action of the user: does it once more, and what the screen tells of it.
    std::function<void()> again = {};
    std::function<std::string()> words = {};
    std::function<bool()> isBusy = {};
};

struct TaskOfAScreen {
    enum class Kind {
        /// No order of the user to the service.
        look,
        order,
        /// An order, after which the screen fetches its record and tells if it cannot.
        orderAndLook,
    };

    const char* name;
    Kind kind;
    bool isInAPage;
    /// Prepares the screen and starts the task, without running it. The screen is looked at from the start of the task.
    Started (*start)(Program& program, int& looks);
};

inline void PrintTo(const TaskOfAScreen& task, std::ostream* out)
{
    *out << task.name;
}

/// Every task of every screen.
std::span<const TaskOfAScreen> tasksOfScreens();

}  // namespace larkspan::workspace
