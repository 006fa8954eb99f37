#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace larkspan::presentation {

/// The alerts of a screen: each failure has one, and what is raised while another is up follows it. Main thread only.
class AlertSequence {
public:
    /// `show` puts up the alert of these words in place of whatever was there, or takes it down.
    explicit AlertSequence(std::function<void(std::optional<std::string> words)> show);

    void raise(std::string words);
    /// The user has read what is up.
    void dismiss();
    /// Nothing of what was raised is to be read any more.
    void withdraw();

    /// Of the alert that came up last. Two that say the same have two numbers.
    int number() const { return number_; }

private:
    void showNext(std::string words);

    const std::function<void(std::optional<std::string> words)> show_;
    std::deque<std::string> waiting_;
    bool isUp_ = false;
    int number_ = 0;
};

}  // namespace larkspan::presentation
