#pragma once

#include <QFont>
#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>
#include <string>

#include "bridge/items/MeasuredColumns.h"
#include "bridge/lists/RowListModel.h"
#include "bridge/messages/MarkdownRowValue.h"
#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/ConfirmationValue.h"
#include "messages/MessageView.h"

namespace larkspan::bridge {

/// A message for QML: its rows, and the question before a link is opened, both of `messages::MessageView`.
class MessageBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(larkspan::bridge::ListModel* rows READ rows CONSTANT)
    /// Whether there is a row in which a key does something: a link to open, a table to scroll.
    Q_PROPERTY(bool takesKeys READ takesKeys NOTIFY changed)
    Q_PROPERTY(bool asksAboutLink READ asksAboutLink NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue linkConfirmation READ linkConfirmation NOTIFY changed)

public:
    MessageBridge(std::shared_ptr<messages::MessageView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    /// Shows the rows of `source`, if it differs from the current one.
    void show(const std::string& source);

    ListModel* rows() { return &rows_; }
    bool takesKeys() const;
    bool asksAboutLink() const { return view_->linkInQuestion->has_value(); }
    ConfirmationValue linkConfirmation() const;

    /// Called when the user presses a link: an href in the text at `row`, or in its cell `cell`; -1 for no cell.
    Q_INVOKABLE void follow(int row, int cell, const QString& href);
    /// The widths of the columns of the table at `row` when drawn in these fonts, each at most `most`.
    Q_INVOKABLE QList<qreal> columnWidths(int row, const QFont& headerFont, const QFont& cellFont, qreal most);
    Q_INVOKABLE void openLink() { view_->openLink(); }
    Q_INVOKABLE void cancelLink() { view_->cancelLink(); }

private:
    std::shared_ptr<messages::MessageView> view_;
    std::optional<std::string> source_;
    RowListModel<MarkdownRowValue> rows_;
    MeasuredColumns columns_;
};

}  // namespace larkspan::bridge
