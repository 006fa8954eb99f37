#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace larkspan::support {

/// Ends with the subscriber: destroying it ends the notices, also from within one.
using Subscription = std::shared_ptr<const void>;
/// Those of one subscriber to all that a screen consists of.
using Subscriptions = std::vector<Subscription>;

/// An object whose observers are told just before one of its `Published` fields changes. One thread only.
class Observable {
public:
    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;

    /// Calls `observer` before each change, in order of subscription. The old value still stands then:
    /// whoever needs the new one posts itself to the main executor.
    [[nodiscard]] Subscription objectWillChange(std::function<void()> observer);

protected:
    ~Observable() = default;

private:
    template <typename T>
    friend class Published;

    void announceChange();

    std::vector<std::weak_ptr<const std::function<void()>>> observers_;
};

/// A field of an `Observable`; each assignment, of an equal value too, is announced before it lands.
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
