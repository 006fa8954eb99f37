#pragma once

#include <string_view>
#include <variant>

namespace larkspan::adapters {

/// What the user asks of a start of the program by its arguments.
struct Arguments {
    /// Starts in the panel alone.
    bool isMinimized = false;
    /// Prints the status of the account and ends.
    bool asksForStatus = false;
    /// Prints it as JSON.
    bool asJSON = false;
};

/// Reads the arguments, or answers those after which a program does not start: `--help`, `--version`, and any that it
/// does not know. The answer is printed to the terminal, without a display, and the code returned with which the
/// process must end: 0, or 2 after arguments that cannot be obeyed. Call it before there is a `QCoreApplication`.
std::variant<Arguments, int> readArguments(int argc, char** argv, std::string_view program, std::string_view version);

}  // namespace larkspan::adapters
