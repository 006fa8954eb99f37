#pragma once

#include "model/KeyTable.h"
#include "model/MaintenanceRequests.h"

namespace larkspan::model {

template <>
struct KeyTable<CreateMaintenanceRequest> {
    static constexpr auto rows = std::tuple{
        required("title", &CreateMaintenanceRequest::title),
        optional("message", &CreateMaintenanceRequest::message),
        required("statusPageId", &CreateMaintenanceRequest::statusPageId),
        required("startAt", &CreateMaintenanceRequest::startAt),
        required("endAt", &CreateMaintenanceRequest::endAt),
        optional("affectedComponents", &CreateMaintenanceRequest::affectedComponents),
        optional("affectedMonitorIds", &CreateMaintenanceRequest::affectedMonitorIds),
    };
};

template <>
struct KeyTable<UpdateMaintenanceRequest> {
    static constexpr auto rows = std::tuple{
        optional("title", &UpdateMaintenanceRequest::title),
        optional("message", &UpdateMaintenanceRequest::message),
        optional("startAt", &UpdateMaintenanceRequest::startAt),
        optional("endAt", &UpdateMaintenanceRequest::endAt),
        optional("affectedComponents", &UpdateMaintenanceRequest::affectedComponents),
        optional("affectedMonitorIds", &UpdateMaintenanceRequest::affectedMonitorIds),
    };
};

}  // namespace larkspan::model
