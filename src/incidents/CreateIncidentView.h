#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/IncidentEndpoints.h"
#include "model/Incident.h"
#include "model/IncidentRequests.h"
#include "presentation/ComponentSelection.h"
#include "presentation/RunningAction.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::incidents {

/// The form of a new incident of one page. It keeps what was typed until the service has it. Main thread only.
class CreateIncidentView final : public support::Observable, public std::enable_shared_from_this<CreateIncidentView> {
public:
    struct Ports {
        api::IncidentEndpoints& api;
        presentation::ComponentSelection::Ports selection;
    };

    struct Owner {
        std::function<void(const model::Incident&)> onCreated;
        /// Closes the sheet.
        std::function<void()> dismiss;
    };

    static constexpr const char* busyText = "Creating...";

    CreateIncidentView(Ports ports, std::string pageId, Owner owner);

    const std::string pageId;

    support::Published<std::string> title{*this};
    support::Published<std::string> message{*this};
    support::Published<bool> notifySubscribers{*this, true};
    /// The question is up whether what has been typed may be lost.
    support::Published<bool> showDiscardConfirmation{*this, false};
    /// The request that runs, and the alert of whatever failed last.
    const std::shared_ptr<presentation::RunningAction> action;
    const std::shared_ptr<presentation::ComponentSelection> selection;

    /// Calls `observer` before anything changes that the form shows.
    [[nodiscard]] std::array<support::Subscription, 3> observe(const std::function<void()>& observer);

    /// The sheet came up: fetches what there is to choose from.
    void appear() { selection->load(); }

    std::vector<presentation::Choice> monitorChoices() const { return selection->monitorChoices("Select a monitor"); }
    /// What the choice of a group is about, or is to be followed by.
    std::string_view selectionHint() const;
    bool isSelectionComplete() const;

    bool isSaveEnabled() const;
    void save();
    bool isCancelEnabled() const { return !*action->isInProgress; }
    void cancel();

    bool hasUnsavedText() const;
    /// Escape, or a press outside: cancels, but asks first where text would be lost.
    void requestClose();
    void keepEditing() { showDiscardConfirmation = false; }
    void discardChanges();

private:
    static support::Task<void> create(std::shared_ptr<CreateIncidentView> self, model::CreateIncidentRequest request);

    bool hasTitle() const;
    model::CreateIncidentRequest request() const;

    api::IncidentEndpoints& api_;
    const Owner owner_;
};

}  // namespace larkspan::incidents
