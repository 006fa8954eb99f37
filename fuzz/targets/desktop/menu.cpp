// The menu on the session bus, where any program may call it: whatever is asked, in any order, a host that follows the
// signals shows the rows as they are, and only a command that exists is chosen, once.

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "Bytes.h"
#include "Target.h"
#include "adapters/tray/DBusMenuService.h"
#include "adapters/tray/MenuRowProperties.h"
#include "support/LegibleOutside.h"

using namespace larkspan;
using namespace larkspan::adapters;
using fuzz::Bytes;
using fuzz::require;
using platform::MenuRow;

namespace {

constexpr std::array names{
    "label", "enabled", "type", "icon-data", "shortcut", "tooltip", "accessible-desc", "unknown"};
constexpr std::array ids{"", "a", "b", "c"};
constexpr std::array events{"clicked", "hovered", "opened", "closed", ""};

/// A panel that does no more than the protocol asks of it.
class Host {
public:
    explicit Host(DBusMenuService& menu)
        : menu_(menu)
    {
        QObject::connect(
            &menu, &DBusMenuService::ItemsPropertiesUpdated, [this](const auto& updated, const auto& removed) {
                for (const auto& item : updated) shown_[item.id].insert(item.properties);
                for (const auto& item : removed) {
                    for (const auto& name : item.properties) shown_[item.id].remove(name);
                }
            });
        QObject::connect(&menu, &DBusMenuService::LayoutUpdated, [this] { fetch(); });
        fetch();
    }

    void check(const std::vector<MenuRow>& rows) const
    {
        require(order_.size() == rows.size(), "a host has each row");
        require(std::set(order_.begin(), order_.end()).size() == rows.size(), "each row has an id of its own");
        for (std::size_t at = 0; at < rows.size(); ++at) {
            require(shown_.value(order_[at]) == menuRowProperties(rows[at]), "a host shows each row as it is");
        }
    }

    const std::vector<int>& order() const { return order_; }

private:
    /// Of items that it knows, a host may not ask for the properties.
    void fetch()
    {
        DBusMenuLayout layout;
        menu_.GetLayout(DBusMenuModel::rootId, -1, {}, layout);
        order_.clear();
        for (const auto& child : layout.children) {
            order_.push_back(child.id);
            if (!shown_.contains(child.id)) shown_.insert(child.id, child.properties);
        }
    }

    DBusMenuService& menu_;
    std::vector<int> order_;
    QHash<int, QVariantMap> shown_;
};

MenuRow rowOf(Bytes& bytes)
{
    MenuRow row{.kind = static_cast<MenuRow::Kind>(bytes.below(3)),
        .action = static_cast<MenuRow::Action>(bytes.below(7)),
        .representedObject = ids[bytes.below(ids.size())],
        .keyEquivalent = bytes.coin() ? "r" : "",
        .dot = static_cast<MenuRow::Dot>(bytes.below(6))};
    row.title = bytes.text();
    if (bytes.coin()) row.toolTip = bytes.text();
    return row;
}

void checkTexts(const MenuRow& row)
{
    const auto properties = menuRowProperties(row);
    for (const auto* const name : {"label", "tooltip"}) {
        const auto text = properties.value(name).toString();
        require(text.size() <= 4 * static_cast<qsizetype>(support::longestOutside) + 1, "a text on the bus is short");
        require(std::ranges::none_of(text, [](QChar c) { return c.category() == QChar::Other_Control; }),
            "a text on the bus has no control characters");
    }
}

class Session {
public:
    explicit Session(Bytes bytes)
        : bytes_(bytes)
    {
    }

    void run()
    {
        for (int steps = 0; !bytes_.atEnd() && steps < 200; ++steps) {
            switch (bytes_.below(6)) {
            case 0: replaceRows(); break;
            case 1: changeARow(); break;
            case 2: askForProperties(); break;
            case 3: askForOne(); break;
            case 4: report(); break;
            default: askBeforeShowing(); break;
            }
            host_.check(rows_);
        }
    }

private:
    void replaceRows()
    {
        rows_.clear();
        for (auto count = bytes_.below(9); count > 0; --count) rows_.push_back(rowOf(bytes_));
        for (const auto& row : rows_) checkTexts(row);
        menu_.setRows(rows_);
    }

    void changeARow()
    {
        if (rows_.empty()) return;
        const auto at = bytes_.below(rows_.size());
        const auto id = host_.order()[at];
        auto changed = rowOf(bytes_);
        changed.kind = rows_[at].kind;
        changed.action = rows_[at].action;
        changed.representedObject = rows_[at].representedObject;
        rows_[at] = changed;
        menu_.setRows(rows_);
        require(host_.order()[at] == id, "a row that changes keeps its id");
    }

    void askForProperties()
    {
        const auto wanted = someIds();
        const auto wantedNames = someNames();
        for (const auto& item : menu_.GetGroupProperties(wanted, wantedNames)) {
            require(
                isKnown(item.id) && (wanted.isEmpty() || wanted.contains(item.id)), "only what is asked for is told");
            for (const auto& name : item.properties.keys()) {
                require(wantedNames.isEmpty() || wantedNames.contains(name), "only what is asked for is told");
            }
        }
    }

    void askForOne()
    {
        DBusMenuLayout layout;
        const int id = knownId();
        menu_.GetLayout(id, static_cast<int>(bytes_.number()), someNames(), layout);
        require(layout.id == id, "a layout is that of its item");
        require(layout.children.isEmpty() || id == DBusMenuModel::rootId, "only the menu has rows");
    }

    void report()
    {
        QList<DBusMenuEvent> reported;
        for (auto count = bytes_.below(200); count > 0; --count) {
            reported << DBusMenuEvent{anyId(), events[bytes_.below(events.size())], QDBusVariant(0), 0};
        }
        const auto known = [this](const auto& event) { return isKnown(event.id); };
        const auto unknown = menu_.EventGroup(reported);
        require(unknown.size() == std::ranges::count_if(reported, std::not_fn(known)), "each unknown item is told");
        QCoreApplication::sendPostedEvents(&menu_);
        require(chosen_.size() <= 1, "one command of a burst is chosen");
        for (const auto& row : chosen_) {
            require(row.kind == MenuRow::Kind::command && std::ranges::find(rows_, row) != rows_.end(),
                "only a command that is shown is chosen");
        }
        const auto presses = std::ranges::count_if(reported, [this](const auto& event) { return isPress(event); });
        require(chosen_.empty() == (presses == 0), "a press is heard");
        chosen_.clear();
    }

    void askBeforeShowing()
    {
        QList<int> unknown;
        const auto asked = someIds();
        require(menu_.AboutToShowGroup(asked, unknown).isEmpty(), "the menu is always up to date");
        require(unknown.size() == std::ranges::count_if(asked, [this](int id) { return !isKnown(id); }),
            "each unknown item is told");
    }

    bool isKnown(int id) const { return id == DBusMenuModel::rootId || rowAt(id) != nullptr; }

    const MenuRow* rowAt(int id) const
    {
        const auto found = std::ranges::find(host_.order(), id);
        return found == host_.order().end() ? nullptr : &rows_[static_cast<std::size_t>(found - host_.order().begin())];
    }

    bool isPress(const DBusMenuEvent& event) const
    {
        const auto* const row = rowAt(event.id);
        return row && row->kind == MenuRow::Kind::command && event.event == "clicked";
    }

    int knownId()
    {
        return rows_.empty() || bytes_.coin() ? DBusMenuModel::rootId : host_.order()[bytes_.below(rows_.size())];
    }

    int anyId() { return bytes_.coin() ? knownId() : static_cast<int>(bytes_.number()); }

    QList<int> someIds()
    {
        QList<int> some;
        for (auto count = bytes_.below(5); count > 0; --count) some << anyId();
        return some;
    }

    QStringList someNames()
    {
        QStringList some;
        for (auto count = bytes_.below(4); count > 0; --count) some << names[bytes_.below(names.size())];
        return some;
    }

    Bytes bytes_;
    std::vector<MenuRow> rows_;
    std::vector<MenuRow> chosen_;
    DBusMenuService menu_{[this](const MenuRow& row) { chosen_.push_back(row); }};
    Host host_{menu_};
};

}  // namespace

FUZZ_TARGET(menu, input)
{
    static int count = 1;
    static std::array<char*, 2> arguments{const_cast<char*>("menu"), nullptr};
    static const QCoreApplication application(count, arguments.data());
    Session(Bytes(input)).run();
}
