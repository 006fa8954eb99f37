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
    return *linkInQuestion ? "This link leads to " + (*linkInQuestion)->host + "." : "";
}

void MessageView::openLink()
{
    if (!*linkInQuestion) return;
    const auto link = **linkInQuestion;
    linkInQuestion = std::nullopt;
    opener_.open(link.destination);
}

}  // namespace larkspan::messages
