#include "bridge/workspace/AboutKestruneBridge.h"

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

AboutKestruneBridge::AboutKestruneBridge(const workspace::AboutKestruneView& about, support::Published<bool>& showing,
    support::Observable& owner, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , about_(about)
    , showing_(showing)
{
    followChangesOf(owner);
}

QString AboutKestruneBridge::title() const
{
    return words(workspace::AboutKestruneView::title);
}

QString AboutKestruneBridge::text() const
{
    return words(workspace::AboutKestruneView::text);
}

QList<LinkValue> AboutKestruneBridge::links() const
{
    return valuesOf<LinkValue>(about_.links());
}

void AboutKestruneBridge::openLink(int place)
{
    about_.open(about_.links().at(static_cast<std::size_t>(place)));
}

}  // namespace larkspan::bridge
