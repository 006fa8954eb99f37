#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "bridge/lists/RowListModel.h"
#include "bridge/menu/MenuEntry.h"
#include "bridge/menu/MenuRowValue.h"
#include "platform/StatusItem.h"

namespace larkspan::bridge {

/// The rows of the panel's item for the window's menu button, in the parts of `core::WindowMenu`. A place counts the
/// rows of all parts from the top.
class StatusMenuBridge : public QObject, public platform::StatusItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(larkspan::bridge::ListModel* summary READ summary CONSTANT)
    Q_PROPERTY(larkspan::bridge::ListModel* pages READ pages CONSTANT)
    Q_PROPERTY(larkspan::bridge::ListModel* incidents READ incidents CONSTANT)
    Q_PROPERTY(larkspan::bridge::ListModel* commands READ commands CONSTANT)

public:
    explicit StatusMenuBridge(std::function<void()> showAbout, QObject* parent = nullptr);

    /// Not a panel: these rows are in the window, and are hidden with it.
    bool isShown() const override { return false; }
    void onShownChanged(std::function<void()>) override {}
    void show(std::function<void(const platform::MenuRow& row)> perform) override;
    void setButton(const Button& button) override;
    void setMenu(const std::vector<platform::MenuRow>& rows) override;

    ListModel* summary() { return &parts_[0]; }
    ListModel* pages() { return &parts_[1]; }
    ListModel* incidents() { return &parts_[2]; }
    ListModel* commands() { return &parts_[3]; }

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
    using Entries = std::vector<MenuEntry>;

    /// The row at `place`; null if there is none.
    const platform::MenuRow* rowAt(int place) const;
    bool isCommand(int place) const;
    int rowCount() const;
    void rebuild();
    void follow();
    bool hasWantedRows() const;

    std::function<void()> showAbout_;
    std::function<void(const platform::MenuRow& row)> perform_;
    std::vector<platform::MenuRow> rows_;
    std::string statusSymbol_;
    std::array<Entries, 4> wanted_;
    std::array<RowListModel<MenuRowValue>, 4> parts_;
    bool isOpen_ = false;
};

}  // namespace larkspan::bridge
