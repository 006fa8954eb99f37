#pragma once

#include <optional>
#include <string_view>

namespace larkspan::adapters {

/// Answers on the terminal, without a display, the arguments after which a program does not start: `--help`,
/// `--version`, and any that it does not know. Returns its exit code then: 0, or 2 for an unknown argument. Call it
/// before there is a `QCoreApplication`.
std::optional<int> answerOnTerminal(int argc, char** argv, std::string_view program, std::string_view version);

}  // namespace larkspan::adapters
