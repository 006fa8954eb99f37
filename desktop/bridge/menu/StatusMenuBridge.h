#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <vector>

#include "bridge/lists/RowListModel.h"
#include "bridge/menu/MenuEntry.h"
#include "bridge/menu/MenuRowValue.h"
#include "platform/StatusItem.h"

namespace larkspan::bridge {

/// The rows of the panel's item for the window's menu button, with the entry for the about box below them.
class StatusMenuBridge : public QObject, public platform::StatusItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(larkspan::bridge::ListModel* rows READ rows CONSTANT)

public:
    explicit StatusMenuBridge(std::function<void()> showAbout, QObject* parent = nullptr);

    /// Not a panel: these rows are in the window, and are hidden with it.
    bool isShown() const override { return false; }
    void onShownChanged(std::function<void()>) override {}
    void show(std::function<void(const platform::MenuRow& row)> perform) override;
    void setButton(const Button&) override {}
    void setMenu(const std::vector<platform::MenuRow>& rows) override;

    ListModel* rows() { return &rows_; }

    /// While the menu is open no row moves, so that a press hits the row that it was meant for: texts change in place,
    /// and other rows are shown only after it is closed.
    Q_INVOKABLE void setOpen(bool isOpen);

    /// Performs the row at `place`, which the user chose; does nothing for a row that is no command.
    Q_INVOKABLE void choose(int place);
    /// The place of the command with this key equivalent; -1 if there is none.
    Q_INVOKABLE int placeOfKey(const QString& key) const;
    /// The place of the next command after `place` in the direction of `step` (1 or -1); `place` itself if there is
    /// none.
    Q_INVOKABLE int nextCommand(int place, int step) const;

private:
    bool isCommand(int place) const;
    bool hasSameRows(const std::vector<MenuEntry>& entries) const;
    void follow();

    std::function<void()> showAbout_;
    std::function<void(const platform::MenuRow& row)> perform_;
    std::vector<MenuEntry> wanted_;
    RowListModel<MenuRowValue> rows_;
    bool isOpen_ = false;
};

}  // namespace larkspan::bridge
