#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/lists/ListModel.h"
#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/AlertValue.h"
#include "bridge/values/PlaceholderValue.h"
#include "presentation/screens/ListScreen.h"

namespace larkspan::bridge {

/// The common part of the bridges of all lists of records; texts and decisions are those of `presentation::ListScreen`.
class ListBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("what the lists of all records are")
    Q_PROPERTY(bool showsList READ showsList NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::PlaceholderValue placeholder MEMBER placeholder_ NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::AlertValue alert READ alert NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ListModel* rows READ rows CONSTANT)

public:
    bool showsList() const { return list_->content() == presentation::Content::records; }
    AlertValue alert() const { return list_->alert() ? AlertValue::of(*list_->alert()) : AlertValue(); }
    virtual ListModel* rows() = 0;

    Q_INVOKABLE void refresh() { list_->refresh(); }
    Q_INVOKABLE void dismissAlert();

protected:
    ListBridge(std::shared_ptr<presentation::ListScreen> list, const ScreenUpdates& updates, QObject* parent);

    /// For the bridges of the screens in front of the list.
    const ScreenUpdates& updates() const { return updates_; }
    void readState() override;

private:
    const std::shared_ptr<presentation::ListScreen> list_;
    const ScreenUpdates& updates_;
    PlaceholderValue placeholder_;
};

}  // namespace larkspan::bridge
