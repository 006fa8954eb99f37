#pragma once

#include <utility>
#include <vector>

#include "platform/Updater.h"

namespace larkspan::fakes {

/// An updater whose checks end when the test says so.
class FakeUpdater final : public platform::Updater {
public:
    void check(support::UniqueFunction<void(platform::UpdateCheck)> complete) override
    {
        pending.push_back(std::move(complete));
    }

    std::vector<support::UniqueFunction<void(platform::UpdateCheck)>> pending;
};

}  // namespace larkspan::fakes
