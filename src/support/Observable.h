#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace larkspan::support {

/// Held by the subscriber: destroying it ends the notifications, also from within one.
using Subscription = std::shared_ptr<const void>;
/// The subscriptions of one subscriber to all parts of a screen.
using Subscriptions = std::vector<Subscription>;

/// An object whose observers are called before one of its `Published` fields changes. One thread only.
class Observable {
public:
    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;

    /// Calls `observer` before each change, in order of subscription. The field still has its old value then; to read
    /// the new one, post to the main executor.
    [[nodiscard]] Subscription objectWillChange(std::function<void()> observer);

protected:
    ~Observable() = default;

private:
    template <typename T>
    friend class Published;

    void announceChange();

    std::vector<std::weak_ptr<const std::function<void()>>> observers_;
};

/// A field of an `Observable`; each assignment, even of an equal value, is announced before it happens.
template <typename T>
class Published {
public:
    explicit Published(Observable& owner, T initial = {})
        : owner_(owner)
        , value_(std::move(initial))
    {
    }
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    Published& operator=(T value)
    {
        owner_.announceChange();
        value_ = std::move(value);
        return *this;
    }

    const T& operator*() const { return value_; }
    const T* operator->() const { return &value_; }

private:
    Observable& owner_;
    T value_;
};

}  // namespace larkspan::support
