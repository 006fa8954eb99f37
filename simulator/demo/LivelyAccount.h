#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Four pages: one works, one is down with two incidents, one is under maintenance and one is not touched by the story
/// yet. `Storyline::ordinaryDay` continues from this state.
Account livelyAccount(const std::string& key, support::Time now);

}  // namespace larkspan::simulator
