#include "model/json/LegibleText.h"

#include "support/Utf8.h"

namespace larkspan::model {

std::string legible(std::string_view text, std::size_t limit)
{
    const bool isCut = text.size() > limit;
    text = support::beginningOf(text, limit);
    std::string answer;
    for (const char byte : text) {
        const bool isControl = static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
        if (isControl)
            answer += "\uFFFD";
        else
            answer += byte;
    }
    if (isCut) answer += "…";
    return answer;
}

}  // namespace larkspan::model
