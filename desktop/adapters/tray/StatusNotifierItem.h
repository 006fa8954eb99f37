#pragma once

#include <QObject>

#include <functional>
#include <utility>
#include <vector>

#include "adapters/Appearance.h"
#include "adapters/SessionBus.h"
#include "adapters/tray/DBusMenuService.h"
#include "adapters/tray/StatusNotifierItemService.h"
#include "adapters/tray/StatusNotifierWatcher.h"
#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// The item with its menu in the panel of desktops that support `org.kde.StatusNotifierItem`. Main thread only.
class StatusNotifierItem final : public QObject, public platform::StatusItem {
    Q_OBJECT

public:
    /// `bus` and `appearance` must outlive the item.
    StatusNotifierItem(const SessionBus& bus, const Appearance& appearance, QObject* parent = nullptr);

    /// Whether the desktop has a panel that shows such items.
    bool hasHost() const { return watcher_.hasHost(); }

    bool isShown() const override { return hasHost(); }
    void onShownChanged(std::function<void()> changed) override { shownChanged_ = std::move(changed); }
    void show(std::function<void(const platform::MenuRow& row)> perform) override;
    void setButton(const Button& button) override;
    void setMenu(const std::vector<platform::MenuRow>& rows) override;

signals:
    void hasHostChanged();

    /// Emitted before the chosen row's action: with this token a window may take the focus.
    void activationTokenProvided(const QString& token);

private:
    void offer();
    void perform(const platform::MenuRow& row) const;
    void updateIcon();

    const SessionBus& bus_;
    const Appearance& appearance_;
    StatusNotifierWatcher watcher_;
    StatusNotifierItemService item_;
    DBusMenuService menu_;
    Button button_;
    std::function<void(const platform::MenuRow& row)> perform_;
    std::function<void()> shownChanged_;
};

}  // namespace larkspan::adapters
