#include "model/json/JoinedIds.h"

namespace larkspan::model {

std::string joinedIds(const std::vector<std::string>& ids)
{
    std::string joined;
    for (std::size_t at = 0; at < ids.size(); ++at) {
        if (at > 0) joined += ',';
        joined += ids[at];
    }
    return joined;
}

}  // namespace larkspan::model
