#pragma once

#include <optional>
#include <string>

#include "messages/markdown/MarkdownLink.h"
#include "messages/markdown/MarkdownRow.h"
#include "platform/LinkOpener.h"
#include "presentation/shapes/Confirmation.h"
#include "support/Observable.h"

namespace larkspan::messages {

/// The message of an incident or a maintenance, and the question before one of its links is opened: the author of a
/// message chooses a link's text, so the user is told where it leads. Main thread only.
class MessageView final : public support::Observable {
public:
    explicit MessageView(platform::LinkOpener& opener)
        : opener_(opener)
    {
    }

    static constexpr presentation::Confirmation linkConfirmation{
        .title = "Open Link?", .text = {}, .confirm = "Open", .cancel = "Cancel"};

    /// The link that the user is asked about; absent if there is no question.
    support::Published<std::optional<MarkdownLink>> linkInQuestion{*this};

    /// The rows of `source`, computed by each call.
    static MarkdownRows rowsOf(const std::string& source);

    void follow(const MarkdownLink& link) { linkInQuestion = link; }
    /// The text of the question: "This link leads to status.example."
    std::string questionText() const;
    void openLink();
    void cancelLink() { linkInQuestion = std::nullopt; }

private:
    platform::LinkOpener& opener_;
};

}  // namespace larkspan::messages
