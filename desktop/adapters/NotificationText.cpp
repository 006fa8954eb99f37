#include "adapters/NotificationText.h"

#include <QStringList>

#include <string_view>

#include "support/Utf8.h"

namespace larkspan::adapters {

namespace {

// In characters; more than a desktop shows at once.
constexpr std::size_t longestLine = 256;
constexpr std::size_t longestBody = 1024;

/// At most `longest` characters from the beginning of `text`.
std::string_view beginningOf(std::string_view text, std::size_t longest)
{
    std::size_t end = 0;
    for (std::size_t count = 0; count < longest && end < text.size(); ++count) {
        end += support::firstCharacter(text.substr(end)).length;
    }
    return text.substr(0, end);
}

QString paragraphs(std::string_view whole, std::size_t longest)
{
    const auto text = beginningOf(whole, longest);
    const bool isCut = text.size() < whole.size();

    QString fit;
    for (const auto character : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) {
        if (character == u'\n' || character.category() != QChar::Other_Control) {
            fit += character;
        } else if (character == u'\t') {
            fit += u' ';
        }
    }
    if (isCut) fit += u'…';
    // Many texts may have to wait.
    fit.squeeze();
    return fit;
}

QString line(std::string_view text)
{
    return paragraphs(text, longestLine).replace(u'\n', u' ');
}

/// `text` with look-alikes in place of the characters that markup is made of.
QString withoutMarkupCharacters(QString text)
{
    return text.replace(u'<', u'‹').replace(u'>', u'›').replace(u'&', u'＆');
}

QString joined(const QString& subtitle, const QString& body)
{
    QStringList parts{subtitle, body};
    parts.removeAll(QString());
    return parts.join(u'\n');
}

}  // namespace

NotificationText::NotificationText(const platform::NotificationRequest& request)
    : title(line(request.title))
    , subtitle(line(request.subtitle))
    , body(paragraphs(request.body, longestBody))
    , type(line(request.type))
    , id(line(request.id))
{
}

QString NotificationText::laidOut(BodyMarkup markup) const
{
    switch (markup) {
    case BodyMarkup::interpreted:
        return joined(subtitle.isEmpty() ? QString() : "<b>" + subtitle.toHtmlEscaped() + "</b>", body.toHtmlEscaped());
    case BodyMarkup::literal: return joined(subtitle, body);
    case BodyMarkup::unknown: break;
    }
    return withoutMarkupCharacters(joined(subtitle, body));
}

}  // namespace larkspan::adapters
