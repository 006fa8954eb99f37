#pragma once

#include "model/TypeList.h"

namespace larkspan::model {

struct AppendIncidentUpdateRequest;
struct CreateIncidentRequest;
struct CreateMaintenanceRequest;
struct UpdateMaintenanceRequest;

/// What the service is sent: the records that a request's body is made from. The encoder is compiled for these.
using RequestBodies
    = TypeList<AppendIncidentUpdateRequest, CreateIncidentRequest, CreateMaintenanceRequest, UpdateMaintenanceRequest>;

}  // namespace larkspan::model
