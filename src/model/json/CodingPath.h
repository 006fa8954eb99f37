#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::model {

/// The place of a value in a body: a chain of links to the root, each on the stack of the code that reads its level, so
/// that a path costs nothing until a failure needs its text. A link's parent must outlive it.
class CodingPath {
public:
    CodingPath() = default;

    CodingPath(const CodingPath* parent, std::string_view wireKey)
        : parent_(parent)
        , wireKey_(wireKey)
        , step_(Step::key)
    {
    }

    CodingPath(const CodingPath* parent, std::size_t index)
        : parent_(parent)
        , index_(index)
        , step_(Step::index)
    {
    }

    /// The path as in `data[3].created_at`; empty for the root.
    std::string text() const;

private:
    const CodingPath* parent_ = nullptr;
    std::string_view wireKey_;
    std::size_t index_ = 0;
    enum class Step { root, key, index } step_ = Step::root;
};

}  // namespace larkspan::model
