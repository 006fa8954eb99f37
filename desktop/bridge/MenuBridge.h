#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <vector>

#include "platform/StatusItem.h"

namespace larkspan::bridge {

/// The rows of the panel's item once more, for the window's menu button, with the entry for the about box below them.
/// Rows are patched in place, so an open menu keeps its scroll position and its current row.
class MenuBridge : public QAbstractListModel, public platform::StatusItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    enum Role {
        TitleRole = Qt::UserRole,
        IsSeparatorRole,
        IsCommandRole,
        HasDotRole,
        ToneRole,
        ToolTipRole,
        ShortcutRole
    };

    explicit MenuBridge(std::function<void()> showAbout, QObject* parent = nullptr);

    void show(std::function<void(const platform::MenuRow& row)> perform) override;
    void setButton(const Button&) override {}
    void setMenu(const std::vector<platform::MenuRow>& rows) override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The user picked the row at `place`; a row that is no command does nothing.
    Q_INVOKABLE void choose(int place);
    /// The place of the command with this key equivalent; -1 if there is none.
    Q_INVOKABLE int placeOfKey(const QString& key) const;
    /// The next command from `place` in the direction of `step` (1 or -1); `place` itself if there is none.
    Q_INVOKABLE int nextCommand(int place, int step) const;

private:
    bool isCommand(int place) const;

    std::function<void()> showAbout_;
    std::function<void(const platform::MenuRow& row)> perform_;
    std::vector<platform::MenuRow> rows_;
};

}  // namespace larkspan::bridge
