#include "bridge/workspace/AboutBridge.h"

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

AboutBridge::AboutBridge(const workspace::AboutKestruneView& about, support::Published<bool>& showing,
    support::Observable& owner, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , about_(about)
    , showing_(showing)
{
    followChangesOf(owner);
}

QString AboutBridge::title() const
{
    return words(workspace::AboutKestruneView::title);
}

QString AboutBridge::text() const
{
    return words(workspace::AboutKestruneView::text);
}

QList<LinkValue> AboutBridge::links() const
{
    return valuesOf<LinkValue>(about_.links());
}

void AboutBridge::openLink(int place)
{
    about_.open(about_.links().at(static_cast<std::size_t>(place)));
}

}  // namespace larkspan::bridge
