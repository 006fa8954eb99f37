#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "support/Observable.h"

namespace larkspan::presentation {

/// The record that stands in front of a list, and its screen; no record, no screen.
template <typename Record, typename Screen>
class PresentedRecord final : public support::Published<std::optional<Record>> {
    using Published = support::Published<std::optional<Record>>;

public:
    using Published::Published;

    /// Null while there is none.
    const std::shared_ptr<Screen>& screen() const { return screen_; }

    /// Told by the end of a request, which may come behind the list or behind another record.
    bool isOf(const std::string& id) const { return (*this)->has_value() && (**this)->id == id; }

    void open(Record record, std::shared_ptr<Screen> screen)
    {
        screen_ = std::move(screen);
        Published::operator=(std::move(record));
    }

    /// The record has changed; its screen stays.
    void update(Record changed) { Published::operator=(std::move(changed)); }

    /// False if there was none.
    bool close()
    {
        if (!(*this)->has_value()) return false;
        Published::operator=(std::nullopt);
        screen_.reset();
        return true;
    }

private:
    std::shared_ptr<Screen> screen_;
};

}  // namespace larkspan::presentation
