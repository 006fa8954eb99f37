#include "bridge/AboutBridge.h"

#include <QVariantMap>

#include "bridge/Words.h"

namespace larkspan::bridge {

AboutBridge::AboutBridge(const workspace::AboutKestruneView& about, support::Published<bool>& showing,
    support::Observable& owner, platform::Executor& main, QObject* parent)
    : QObject(parent)
    , about_(about)
    , showing_(showing)
    , notice_(main, [this] { emit changed(); })
    , subscription_(owner.objectWillChange([this] { notice_.announce(); }))
{
}

QString AboutBridge::title() const
{
    return words(workspace::AboutKestruneView::title);
}

QString AboutBridge::text() const
{
    return words(workspace::AboutKestruneView::text);
}

QVariantList AboutBridge::links() const
{
    QVariantList rows;
    for (const auto& link : about_.links()) {
        rows << QVariantMap{{QStringLiteral("symbol"), words(link.symbol)},
            {QStringLiteral("title"), words(link.title)}, {QStringLiteral("subtitle"), words(link.subtitle)}};
    }
    return rows;
}

void AboutBridge::openLink(int place)
{
    about_.open(about_.links().at(static_cast<std::size_t>(place)));
}

}  // namespace larkspan::bridge
