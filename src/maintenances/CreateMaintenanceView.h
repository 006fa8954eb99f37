#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "api/MaintenanceEndpoints.h"
#include "model/records/Maintenance.h"
#include "platform/Clock.h"
#include "presentation/forms/EventForm.h"
#include "presentation/shapes/Marker.h"
#include "presentation/time/DateTimePicker.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::maintenances {

/// The form that schedules a maintenance on one page. Main thread only.
class CreateMaintenanceView final : public presentation::EventForm {
public:
    struct Ports {
        api::MaintenanceEndpoints& api;
        const platform::Clock& clock;
        presentation::ComponentSelection::Ports selection;
    };

    struct Owner {
        std::function<void(const model::Maintenance&)> onCreated;
        /// Closes the sheet.
        std::function<void()> dismiss;
        /// Called when it is unknown whether a write took effect: fetches the list again.
        std::function<void()> reloadList = {};
    };

    CreateMaintenanceView(Ports ports, std::string pageId, Owner owner);

    /// By default, from now on for an hour.
    const std::shared_ptr<presentation::DateTimePicker> scheduledFor;
    const std::shared_ptr<presentation::DateTimePicker> scheduledUntil;

    /// How long the maintenance is; a warning if it cannot be saved for that.
    presentation::Marker length() const;

    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer) override;

    /// A component is sufficient, even without a monitor.
    bool isSelectionComplete() const override;
    bool hasUnsavedText() const override;

protected:
    bool canBeSent() const override;

private:
    support::Task<void> create() override;
    bool hasLength() const;
    api::NewMaintenance arguments() const;

    api::MaintenanceEndpoints& api_;
    const std::function<void(const model::Maintenance&)> onCreated_;
};

}  // namespace larkspan::maintenances
