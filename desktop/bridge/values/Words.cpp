#include "bridge/values/Words.h"

#include "presentation/text/InPart.h"
#include "presentation/text/NameText.h"

namespace larkspan::bridge {

QString words(std::string_view text)
{
    constexpr auto most = presentation::mostOfAText;
    return text.size() <= most ? wholeText(text) : wholeText(presentation::inPart(text, most));
}

QString nameWords(std::string_view name)
{
    return wholeText(presentation::nameText(name));
}

QString wholeText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace larkspan::bridge
