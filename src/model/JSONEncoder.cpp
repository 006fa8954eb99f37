#include "model/JSONEncoder.h"

#include "model/Encoding.h"
#include "model/IncidentRequestsKeys.h"
#include "model/MaintenanceRequestsKeys.h"

namespace larkspan::model {

template <typename Request>
std::string JSONEncoder::encode(const Request& request) const
{
    return encodeRecord(request);
}

template std::string JSONEncoder::encode(const AppendIncidentUpdateRequest&) const;
template std::string JSONEncoder::encode(const CreateIncidentRequest&) const;
template std::string JSONEncoder::encode(const CreateMaintenanceRequest&) const;
template std::string JSONEncoder::encode(const UpdateMaintenanceRequest&) const;

}  // namespace larkspan::model
