#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace larkspan::model {

/// Maps the keys of a record's objects to the record's key names. The objects of a list mostly have the same keys in
/// the same order, so each conversion is kept, and looked up after the one of the previous key.
class KnownKeys {
public:
    explicit KnownKeys(std::span<const std::string_view> keyNames)
        : keyNames_(keyNames)
    {
    }

    /// The place of the key name that `wireKey` converts to, or the number of names if it is none of them. The bytes of
    /// `wireKey` must outlive this object.
    std::size_t placeOf(std::string_view wireKey)
    {
        for (std::size_t looks = 0; looks < count_; ++looks) {
            if (next_ == count_) next_ = 0;
            const auto& known = known_[next_++];
            if (known.wireKey == wireKey) return known.place;
        }
        return learn(wireKey);
    }

private:
    struct Known {
        std::string_view wireKey;
        std::size_t place = 0;
    };

    std::size_t learn(std::string_view wireKey);

    std::span<const std::string_view> keyNames_;
    // Objects with more keys are read correctly too, only more slowly.
    std::array<Known, 32> known_;
    std::size_t count_ = 0;
    std::size_t next_ = 0;
    std::string buffer_;
};

}  // namespace larkspan::model
