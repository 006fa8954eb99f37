#include "model/records/StatusPageStatus.h"

namespace larkspan::model {

std::string_view displayName(StatusPageStatus status)
{
    switch (status) {
    case StatusPageStatus::operational: return "Operational";
    case StatusPageStatus::degraded: return "Degraded";
    case StatusPageStatus::down: return "Down";
    case StatusPageStatus::maintenance: return "Maintenance";
    case StatusPageStatus::unknown: break;
    }
    return "Unknown";
}

}  // namespace larkspan::model
