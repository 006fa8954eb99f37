#include "presentation/text/InPart.h"

#include "support/Utf8.h"

namespace larkspan::presentation {

std::string moreText(std::size_t count)
{
    return count <= mostLines ? "" : "and " + std::to_string(count - mostLines) + " more";
}

std::string inPart(std::string_view text, std::size_t most)
{
    if (text.size() <= most) return std::string(text);
    return std::string(support::beginningOf(text, most)) + "…";
}

}  // namespace larkspan::presentation
