#include "model/json/CodingPath.h"

#include "model/json/LegibleText.h"

namespace larkspan::model {

namespace {

constexpr std::size_t longestKey = 64;

}  // namespace

std::string CodingPath::text() const
{
    if (step_ == Step::root) return {};
    const auto parent = parent_->text();
    if (step_ == Step::index) return parent + '[' + std::to_string(index_) + ']';
    const auto key = legible(wireKey_, longestKey);
    return parent.empty() ? key : parent + '.' + key;
}

}  // namespace larkspan::model
