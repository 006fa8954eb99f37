#include "presentation/screens/AlertSequence.h"

#include <utility>

namespace larkspan::presentation {

AlertSequence::AlertSequence(std::function<void(std::optional<std::string> words)> show)
    : show_(std::move(show))
{
}

void AlertSequence::raise(std::string words)
{
    if (isUp_)
        waiting_.push_back(std::move(words));
    else
        showNext(std::move(words));
}

void AlertSequence::dismiss()
{
    if (waiting_.empty()) return withdraw();
    auto next = std::move(waiting_.front());
    waiting_.pop_front();
    showNext(std::move(next));
}

void AlertSequence::withdraw()
{
    waiting_.clear();
    isUp_ = false;
    show_(std::nullopt);
}

void AlertSequence::showNext(std::string words)
{
    isUp_ = true;
    ++number_;
    show_(std::move(words));
}

}  // namespace larkspan::presentation
