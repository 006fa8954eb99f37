#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/Account.h"

namespace larkspan::simulator {

/// The number of pages for a name: "empty", "tiny", "small", "large", or a number up to 100,000.
std::optional<std::size_t> seedSize(std::string_view name);

/// Realistic pages with unique names and ids, always the same for the same count. All are operational except one
/// degraded in nine, one down in eleven and one under maintenance in thirteen.
std::vector<StatusPage> seededPages(std::size_t count);

/// One such page with the given name.
StatusPage seededPage(std::size_t index, std::string name, PageHealth health);

/// An account with this number of realistic pages, with their events, components and monitors at the time `now`;
/// without keys.
Account seededAccount(std::size_t pages, support::Time now);

}  // namespace larkspan::simulator
