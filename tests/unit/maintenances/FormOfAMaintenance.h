#pragma once

#include <memory>
#include <string>
#include <utility>

#include "fakes/OpenedForm.h"
#include "maintenances/CreateMaintenanceView.h"

namespace larkspan::maintenances {

/// The form of a maintenance on the page "p".
class FormOfAMaintenance : public fakes::OpenedForm<CreateMaintenanceView> {
protected:
    FormOfAMaintenance()
        : OpenedForm(maintenancesURL, R"({"id": "8", "title": "Upgrade"})")
    {
    }

    std::shared_ptr<CreateMaintenanceView> made() override
    {
        CreateMaintenanceView::Owner owner{
            .onCreated = [this](const model::Maintenance& maintenance) { note(maintenance.id); },
            .dismiss = [this] { note("dismiss"); }};
        return std::make_shared<CreateMaintenanceView>(
            CreateMaintenanceView::Ports{api, clock, {main, api, api, locale}}, "p", std::move(owner));
    }

    std::shared_ptr<CreateMaintenanceView> titled(const std::string& title = "Upgrade")
    {
        return OpenedForm::titled(title);
    }
};

}  // namespace larkspan::maintenances
