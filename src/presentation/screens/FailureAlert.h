#pragma once

#include <deque>
#include <optional>
#include <string>

#include "support/Observable.h"

namespace larkspan::presentation {

/// The alert in which a screen tells what has failed. Each failure gets its own: one that is raised while another is
/// up follows it. Main thread only.
class FailureAlert {
public:
    explicit FailureAlert(support::Observable& screen);

    support::Published<bool> isUp;
    /// What the alert that came up last says; it stays when that has gone.
    support::Published<std::optional<std::string>> text;

    /// What the alert says that is up; empty while none is.
    std::string words() const;
    /// The number of the alert that came up last. Two that say the same have different numbers.
    int number() const { return number_; }

    void raise(std::string words);
    /// The user has read the alert that is up.
    void dismiss();
    /// Takes down the alert that is up, and drops those that wait.
    void withdraw();

private:
    void show(std::string words);

    std::deque<std::string> waiting_;
    int number_ = 0;
};

}  // namespace larkspan::presentation
