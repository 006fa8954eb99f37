#pragma once

#include <memory>
#include <string>
#include <utility>

#include "support/Observable.h"

namespace larkspan::presentation {

/// The screen that is open over another one: a record's, a sheet or a form; null while there is none.
template <typename Screen>
class Opened final : public support::Published<std::shared_ptr<Screen>> {
    using Published = support::Published<std::shared_ptr<Screen>>;

public:
    explicit Opened(support::Observable& owner)
        : Published(owner)
    {
    }

    const std::shared_ptr<Screen>& screen() const { return **this; }
    bool isOpen() const { return screen() != nullptr; }

    /// Whether the record of that id is open. The end of a request asks, since it may come after the user has gone
    /// back, or on to another record.
    bool isOf(const std::string& id) const { return isOpen() && screen()->id() == id; }

    void open(std::shared_ptr<Screen> opened)
    {
        if constexpr (requires { opened->appear(); }) opened->appear();
        Published::operator=(std::move(opened));
    }

    /// False if nothing was open.
    bool close()
    {
        if (!isOpen()) return false;
        Published::operator=(nullptr);
        return true;
    }
};

}  // namespace larkspan::presentation
