#include "presentation/screens/FailureAlert.h"

#include <utility>

namespace larkspan::presentation {

FailureAlert::FailureAlert(support::Observable& screen)
    : isUp(screen, false)
    , text(screen)
{
}

std::string FailureAlert::words() const
{
    return *isUp ? text->value_or("An unknown error occurred.") : "";
}

void FailureAlert::raise(std::string words)
{
    if (*isUp)
        waiting_.push_back(std::move(words));
    else
        show(std::move(words));
}

void FailureAlert::dismiss()
{
    if (waiting_.empty()) return withdraw();
    auto next = std::move(waiting_.front());
    waiting_.pop_front();
    show(std::move(next));
}

void FailureAlert::withdraw()
{
    waiting_.clear();
    isUp = false;
}

void FailureAlert::show(std::string words)
{
    ++number_;
    text = std::move(words);
    isUp = true;
}

}  // namespace larkspan::presentation
