#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/Account.h"

namespace larkspan::simulator {

/// How many pages a name stands for: "empty", "tiny", "small", "large", or a number up to 100,000.
std::optional<std::size_t> seedSize(std::string_view name);

/// Believable pages, each name and id once; the same for the same count. All are operational but for
/// a degraded one in each nine, a down one in each eleven and one under maintenance in each thirteen.
std::vector<StatusPage> seededPages(std::size_t count);

/// One such page under a name of its own.
StatusPage seededPage(std::size_t index, std::string name, PageHealth health);

/// So many believable pages, and events, components and monitors of theirs by the time `now`; no keys.
Account seededAccount(std::size_t pages, support::Time now);

}  // namespace larkspan::simulator
