#include "model/CodingPath.h"

#include "model/LegibleText.h"

namespace larkspan::model {

namespace {

constexpr std::size_t longestKey = 64;

}  // namespace

CodingPath::CodingPath(const CodingPath* parent, std::string_view wireKey)
    : parent_(parent)
    , wireKey_(wireKey)
    , step_(Step::key)
{
}

CodingPath::CodingPath(const CodingPath* parent, std::size_t index)
    : parent_(parent)
    , index_(index)
    , step_(Step::index)
{
}

std::string CodingPath::text() const
{
    if (step_ == Step::root) return {};
    const auto parent = parent_->text();
    if (step_ == Step::index) return parent + '[' + std::to_string(index_) + ']';
    const auto key = legible(wireKey_, longestKey);
    return parent.empty() ? key : parent + '.' + key;
}

}  // namespace larkspan::model
