#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Four pages in the middle of things: one works, one is down in two incidents, one is under maintenance and one has
/// not been looked at yet. `Storyline::ordinaryDay` goes on from here.
Account livelyAccount(const std::string& key, support::Time now);

}  // namespace larkspan::simulator
