#pragma once

#include <memory>
#include <string>

#include "fakes/ListOfAPage.h"
#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "maintenances/MaintenanceRow.h"
#include "maintenances/StatusPageMaintenancesView.h"

namespace larkspan::maintenances {

class MaintenancesOfAPage : public fakes::ListOfAPage<StatusPageMaintenancesView> {
public:
    static constexpr auto name = "Maintenances";

protected:
    static constexpr auto loadingText = "Loading Maintenances...";

    MaintenancesOfAPage()
        : ListOfAPage(maintenancesURL)
    {
        const StatusPageMaintenancesView::Ports ports{{main, api, api, credentials, clock, locale, links}, api};
        view = std::make_shared<StatusPageMaintenancesView>(ports, "p");
    }

    static std::string record(const std::string& id, const std::string& rest = "")
    {
        return R"({"id": ")" + id + R"(", "title": "Work )" + id + R"(", "status_page_id": "p")" + rest + "}";
    }

    static std::string urlOf(const std::string& id) { return std::string(maintenancesURL) + "/" + id; }

    void open(const std::string& id)
    {
        view->openMaintenance(id);
        transport.requests.clear();
    }

    void openForm() { view->openCreateMaintenance(); }
    bool isFormUp() const { return view->showCreateSheet.isOpen(); }
};

}  // namespace larkspan::maintenances
