#pragma once

#include <functional>
#include <memory>
#include <string>

#include "api/IncidentEndpoints.h"
#include "model/bodies/IncidentRequests.h"
#include "model/records/Incident.h"
#include "presentation/forms/EventForm.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::incidents {

/// The form of a new incident of one page. Main thread only.
class CreateIncidentView final : public presentation::EventForm {
public:
    struct Ports {
        api::IncidentEndpoints& api;
        presentation::ComponentSelection::Ports selection;
    };

    struct Owner {
        std::function<void(const model::Incident&)> onCreated;
        /// Closes the sheet.
        std::function<void()> dismiss;
        /// Called when it is unknown whether a write took effect: fetches the list again.
        std::function<void()> reloadList = {};
    };

    CreateIncidentView(Ports ports, std::string pageId, Owner owner);

    support::Published<bool> notifySubscribers{*this, true};

    bool isSelectionComplete() const override;

private:
    support::Task<void> create() override;
    model::CreateIncidentRequest request() const;

    api::IncidentEndpoints& api_;
    const std::function<void(const model::Incident&)> onCreated_;
};

}  // namespace larkspan::incidents
