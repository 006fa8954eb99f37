#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <vector>

#include "bridge/ScreenUpdates.h"
#include "support/Observable.h"

namespace larkspan::bridge {

/// What the bridges of all screens are: QML hears once that something changed, after all changes of a turn.
class ScreenBridge : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("what the bridges of all screens are")

signals:
    void changed();

protected:
    ScreenBridge(const ScreenUpdates& updates, QObject* parent);

    /// From now on the changes of `observed` are told.
    void followChangesOf(support::Observable& observed)
    {
        subscriptions_.push_back(observed.objectWillChange(observer()));
    }
    void keep(support::Subscription subscription) { subscriptions_.push_back(std::move(subscription)); }

    /// What an object with observers of its own calls before it changes.
    std::function<void()> observer();

    /// Called before each `changed`, for what is read once and shown often.
    virtual void readState() {}

private:
    ChangeNotice notice_;
    std::vector<support::Subscription> subscriptions_;
};

}  // namespace larkspan::bridge
