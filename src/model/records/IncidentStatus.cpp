#include "model/records/IncidentStatus.h"

namespace larkspan::model {

std::string_view rawText(IncidentStatus status)
{
    switch (status) {
    case IncidentStatus::active: break;
    case IncidentStatus::acknowledged: return "acknowledged";
    case IncidentStatus::resolved: return "resolved";
    case IncidentStatus::completed: return "completed";
    }
    return "active";
}

}  // namespace larkspan::model
