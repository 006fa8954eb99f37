#pragma once

#include <string_view>

namespace larkspan::presentation {

/// The words of a question that stands before something which cannot be undone.
struct Confirmation {
    std::string_view title;
    /// Empty for none.
    std::string_view text;
    /// The button that does it.
    std::string_view confirm;
    /// The button that does nothing.
    std::string_view cancel;
};

/// Asked where Escape or a press outside would lose what the user has typed.
inline constexpr Confirmation discardConfirmation{.title = "Discard Changes?",
    .text = "What you have typed will be lost.",
    .confirm = "Discard",
    .cancel = "Keep Editing"};

}  // namespace larkspan::presentation
