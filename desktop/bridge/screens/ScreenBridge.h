#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>
#include <vector>

#include "bridge/screens/ScreenUpdates.h"
#include "support/Observable.h"

namespace larkspan::bridge {

/// A screen that shows more than its own fields, and tells of all of it.
template <typename Screen>
concept ObservedAsAWhole
    = requires(Screen& screen, const std::function<void()>& observer) { screen.observe(observer); };

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
    /// The same for a screen of which more than itself changes.
    template <ObservedAsAWhole Screen>
    void followChangesOf(Screen& screen)
    {
        for (auto& subscription : screen.observe(observer())) subscriptions_.push_back(std::move(subscription));
    }

    /// What an object with observers of its own calls before it changes.
    std::function<void()> observer();

    /// Called before each `changed`, for what is read once and shown often.
    virtual void readState() {}

private:
    ChangeNotice notice_;
    support::Subscriptions subscriptions_;
};

}  // namespace larkspan::bridge
