#pragma once

#include <string>
#include <vector>

namespace larkspan::model {

/// The ids as one text, separated by commas in their order, as the service expects a list of them.
std::string joinedIds(const std::vector<std::string>& ids);

}  // namespace larkspan::model
