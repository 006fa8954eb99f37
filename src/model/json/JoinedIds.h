#pragma once

#include <string>
#include <vector>

namespace larkspan::model {

/// Ids as one text, the way the service takes a list of them: parted by commas, in their order.
std::string joinedIds(const std::vector<std::string>& ids);

}  // namespace larkspan::model
