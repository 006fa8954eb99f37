#pragma once

#include "model/json/TypeList.h"

namespace larkspan::model {

struct AppendIncidentUpdateRequest;
struct CreateComponentRequest;
struct CreateGroupRequest;
struct CreateIncidentRequest;
struct CreateMaintenanceRequest;
struct UpdateComponentRequest;
struct UpdateGroupRequest;
struct UpdateMaintenanceRequest;
struct UpdateStatusPageRequest;

/// The records that bodies of requests are made from. The encoder is compiled for these.
using RequestBodies = TypeList<AppendIncidentUpdateRequest, CreateComponentRequest, CreateGroupRequest,
    CreateIncidentRequest, CreateMaintenanceRequest, UpdateComponentRequest, UpdateGroupRequest,
    UpdateMaintenanceRequest, UpdateStatusPageRequest>;

}  // namespace larkspan::model
