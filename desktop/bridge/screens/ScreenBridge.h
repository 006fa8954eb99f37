#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>
#include <vector>

#include "support/AfterChanges.h"
#include "support/Observable.h"
#include "support/ScreenUpdates.h"

namespace larkspan::bridge {

using support::ScreenUpdates;

/// A screen that shows more than its own fields, and can be observed as a whole.
template <typename Screen>
concept ObservedAsAWhole
    = requires(Screen& screen, const std::function<void()>& observer) { screen.observe(observer); };

/// The base of all screens' bridges: QML is notified once, after all changes of a turn.
class ScreenBridge : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("what the bridges of all screens are")

signals:
    void changed();

protected:
    ScreenBridge(const ScreenUpdates& updates, QObject* parent);

    /// Reports the changes of `observed` from now on.
    void followChangesOf(support::Observable& observed)
    {
        subscriptions_.push_back(observed.objectWillChange(observer()));
    }
    /// The same for a screen that consists of several observed objects.
    template <ObservedAsAWhole Screen>
    void followChangesOf(Screen& screen)
    {
        for (auto& subscription : screen.observe(observer())) subscriptions_.push_back(std::move(subscription));
    }

    /// Returns a function for an object to call before it changes.
    std::function<void()> observer();

    /// Called before each `changed`, for values that are read once and shown often.
    virtual void readState() {}

private:
    const support::AfterChanges changes_;
    support::Subscriptions subscriptions_;
};

}  // namespace larkspan::bridge
