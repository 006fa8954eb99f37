#pragma once

#include <optional>

#include "service/Exchange.h"

namespace larkspan::simulator {

struct Account;

/// The status with which the service refuses the request, if it does: 401 unless both headers contain the same known
/// key, 403 for a key without rights.
std::optional<int> refusal(const Request& request, const Account& account);

}  // namespace larkspan::simulator
