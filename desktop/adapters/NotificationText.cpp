#include "adapters/NotificationText.h"

#include <QStringList>

#include <string_view>

#include "support/LegibleOutside.h"

namespace larkspan::adapters {

namespace {

QString paragraphs(std::string_view text)
{
    auto legible = QString::fromStdString(support::legibleOutside(text, support::Lines::several));
    // Many texts may have to wait.
    legible.squeeze();
    return legible;
}

QString line(std::string_view text)
{
    auto legible = QString::fromStdString(support::legibleOutside(text));
    legible.squeeze();
    return legible;
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
    , body(paragraphs(request.body))
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
