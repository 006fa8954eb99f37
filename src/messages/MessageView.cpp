#include "messages/MessageView.h"

#include "messages/markdown/StatusMarkdownContent.h"
#include "presentation/text/InPart.h"

namespace larkspan::messages {

MarkdownRows MessageView::rowsOf(const std::string& source)
{
    return StatusMarkdownContent(presentation::inPart(source, presentation::mostOfAMessage)).rows();
}

std::string MessageView::questionText() const
{
    const std::optional<MarkdownLink>& link = *linkInQuestion;
    return link ? "This link leads to " + link->host + "." : "";
}

void MessageView::openLink()
{
    const std::optional<MarkdownLink> link = *linkInQuestion;
    if (!link) return;
    linkInQuestion = std::nullopt;
    opener_.open(link->destination);
}

}  // namespace larkspan::messages
