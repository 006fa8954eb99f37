#include "model/json/KnownKeys.h"

#include <algorithm>

#include "model/json/KeyConversion.h"

namespace larkspan::model {

std::size_t KnownKeys::learn(std::string_view wireKey)
{
    const auto name = std::ranges::find(keyNames_, fromSnakeCase(wireKey, buffer_));
    const auto place = static_cast<std::size_t>(name - keyNames_.begin());
    if (count_ < known_.size()) {
        known_[count_++] = {wireKey, place};
        next_ = count_;
    }
    return place;
}

}  // namespace larkspan::model
