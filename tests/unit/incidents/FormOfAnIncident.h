#pragma once

#include <memory>
#include <string>
#include <utility>

#include "fakes/OpenedForm.h"
#include "incidents/CreateIncidentView.h"

namespace larkspan::incidents {

/// The form of an incident on the page "p".
class FormOfAnIncident : public fakes::OpenedForm<CreateIncidentView> {
protected:
    FormOfAnIncident()
        : OpenedForm(incidentsURL, R"({"id": "8", "title": "Down", "created_at": "2026-11-20T09:00:00Z"})")
    {
    }

    std::shared_ptr<CreateIncidentView> made() override
    {
        CreateIncidentView::Owner owner{.onCreated = [this](const model::Incident& incident) { note(incident.id); },
            .dismiss = [this] { note("dismiss"); }};
        return std::make_shared<CreateIncidentView>(
            CreateIncidentView::Ports{api, {main, api, api, locale}}, "p", std::move(owner));
    }
};

}  // namespace larkspan::incidents
