#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "fakes/OpenedDetail.h"
#include "incidents/IncidentDetailView.h"

namespace larkspan::incidents {

using Words = std::vector<std::string>;

inline const std::string recordURL = "https://service.example/user/api/v1/incidents/7";
inline const std::string actionURL = "https://service.example/user/api/incidents/7/";
inline const std::string statesURL = "https://service.example/user/api/incident-states";

inline std::string record(const std::string& rest = "")
{
    return R"({"id": "7", "title": "Outage", "created_at": "2026-11-20T07:00:00Z")" + rest + "}";
}

inline const std::string acknowledged = R"(, "acknowledged_at": "x")";
inline const std::string resolved = R"(, "incident_state_id": "4", "ended_at": "2026-11-20T08:30:00Z")";

/// An incident "7" on the screen, whose owner passes its changes back.
class DetailOfAnIncident : public fakes::OpenedDetail<IncidentDetailView> {
protected:
    using Action = IncidentDetailView::DetailAction;

    std::shared_ptr<IncidentDetailView> opened(const std::string& rest = "")
    {
        IncidentDetailView::Owner owner{.onUpdate = [this](const model::Incident& changed) { update(changed); },
            .dismiss = [this] { note("dismiss"); }};
        view = std::make_shared<IncidentDetailView>(IncidentDetailView::Ports{main, api, clock, locale, links},
            decoded<model::Incident>(record(rest)), std::move(owner));
        return view;
    }

    std::shared_ptr<IncidentDetailView> editing(const std::string& text)
    {
        opened()->beginEditing();
        view->editMessage = text;
        return view;
    }

    void update(const model::Incident& changed)
    {
        note("update");
        if (view) view->show(changed);
    }

    void performed(Action action)
    {
        view->performAction(action);
        run();
    }
};

}  // namespace larkspan::incidents
