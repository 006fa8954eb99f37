#include "model/LegibleText.h"

namespace larkspan::model {

namespace {

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

}  // namespace

std::string legible(std::string_view text, std::size_t limit)
{
    const bool isCut = text.size() > limit;
    if (isCut) {
        while (limit > 0 && isContinuation(text[limit])) --limit;
        text = text.substr(0, limit);
    }
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
