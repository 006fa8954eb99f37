#pragma once

#include <string_view>

namespace larkspan::presentation {

/// The texts of the question before something that cannot be undone.
struct Confirmation {
    std::string_view title;
    /// Empty for none.
    std::string_view text;
    /// The text of the button that confirms.
    std::string_view confirm;
    /// The text of the button that cancels.
    std::string_view cancel;
};

/// The question if Escape or a press outside would lose typed text.
inline constexpr Confirmation discardConfirmation{.title = "Discard Changes?",
    .text = "What you have typed will be lost.",
    .confirm = "Discard",
    .cancel = "Keep Editing"};

}  // namespace larkspan::presentation
