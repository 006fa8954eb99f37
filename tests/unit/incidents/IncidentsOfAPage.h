#pragma once

#include <memory>
#include <string>

#include "fakes/ListOfAPage.h"
#include "incidents/CreateIncidentView.h"
#include "incidents/IncidentDetailView.h"
#include "incidents/IncidentRow.h"
#include "incidents/StatusPageIncidentsView.h"

namespace larkspan::incidents {

class IncidentsOfAPage : public fakes::ListOfAPage<StatusPageIncidentsView> {
public:
    static constexpr auto name = "Incidents";

protected:
    static constexpr auto loadingText = "Loading Incidents...";

    IncidentsOfAPage()
        : ListOfAPage(std::string(incidentsURL) + "?status_page_id=p")
    {
        const StatusPageIncidentsView::Ports ports{{main, api, api, credentials, clock, locale, links}, api};
        view = std::make_shared<StatusPageIncidentsView>(ports, "p");
    }

    static std::string record(const std::string& id, const std::string& rest = "")
    {
        return R"({"id": ")" + id + R"(", "title": "Incident )" + id + R"(", "created_at": "2026-11-20T07:00:00Z")"
            + rest + "}";
    }

    void open(const std::string& id)
    {
        view->openIncident(id);
        transport.requests.clear();
    }

    void openForm() { view->openCreateIncident(); }
    bool isFormUp() const { return view->showCreateIncident.isOpen(); }
};

}  // namespace larkspan::incidents
