#pragma once

#include "model/IncidentRequests.h"
#include "model/KeyTable.h"

namespace larkspan::model {

template <>
struct KeyTable<CreateIncidentRequest> {
    static constexpr auto rows = std::tuple{
        required("title", &CreateIncidentRequest::title),
        optional("message", &CreateIncidentRequest::message),
        optional("statusPageId", &CreateIncidentRequest::statusPageId),
        optional("componentId", &CreateIncidentRequest::componentId),
        optional("monitorId", &CreateIncidentRequest::monitorId),
        required("notifySubscribers", &CreateIncidentRequest::notifySubscribers),
    };
};

template <>
struct KeyTable<AppendIncidentUpdateRequest> {
    static constexpr auto rows = std::tuple{
        optional("message", &AppendIncidentUpdateRequest::message),
        optional("incidentStateId", &AppendIncidentUpdateRequest::incidentStateId),
        required("appendUpdate", &AppendIncidentUpdateRequest::appendUpdate),
    };
};

}  // namespace larkspan::model
