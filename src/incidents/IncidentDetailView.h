#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/IncidentEndpoints.h"
#include "incidents/IncidentPills.h"
#include "incidents/IncidentTimeline.h"
#include "incidents/MessageView.h"
#include "model/Incident.h"
#include "platform/Clock.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/ActionButton.h"
#include "presentation/Command.h"
#include "presentation/Confirmation.h"
#include "presentation/RunningAction.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::incidents {

/// One incident, and what can be done to it. It changes no record by itself: after each success it gives the service's
/// own to its owner, who hands it back with `show`. Main thread only; closing it stops no request.
class IncidentDetailView final : public support::Observable, public std::enable_shared_from_this<IncidentDetailView> {
public:
    struct Ports {
        platform::Executor& main;
        api::IncidentEndpoints& api;
        const platform::Clock& clock;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
    };

    struct Owner {
        std::function<void(const model::Incident&)> onUpdate;
        /// Closes the screen.
        std::function<void()> dismiss;
    };

    enum class DetailAction { acknowledge, resolve, escalate, delete_ };

    static constexpr presentation::Confirmation deleteConfirmation{.title = "Delete Incident",
        .text = "Are you sure you want to delete this incident? This action cannot be undone.",
        .confirm = "Delete",
        .cancel = "Cancel"};

    IncidentDetailView(Ports ports, model::Incident incident, Owner owner);

    support::Published<model::Incident> incident;
    support::Published<bool> showDeleteConfirmation{*this, false};
    /// The question is up whether the text of the editor may be lost.
    support::Published<bool> showDiscardConfirmation{*this, false};
    /// The editor of an update is open.
    support::Published<bool> isEditing{*this, false};
    support::Published<std::string> editMessage{*this};
    /// The request that runs, and the alert of the one that failed.
    const std::shared_ptr<presentation::RunningAction> action;
    /// The description as it is shown.
    const std::shared_ptr<MessageView> message;

    /// Calls `observer` before anything changes that the screen shows.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    void show(model::Incident changed) { incident = std::move(changed); }

    std::string title() const { return *isEditing ? "Add Update" : incident->title; }
    std::vector<presentation::Pill> pills() const { return headerPills(*incident); }
    std::vector<presentation::TimelineRow> timeline() const { return incidentTimeline(*incident, ports_.locale); }
    std::string duration() const { return incidentDuration(*incident, ports_.clock.now()); }
    /// Empty for nobody.
    std::string assignedTo() const { return incident->assignedTo.value_or(""); }
    /// The message in markdown.
    std::string description() const { return incident->message.value_or(""); }
    bool showsDescription() const { return !*isEditing && !description().empty(); }

    /// In the order of the screen.
    std::vector<presentation::ActionButton> buttons() const;
    /// Does what the button of that id says; nothing if there is none or it is disabled.
    void press(std::string_view id);
    bool isDeleteEnabled() const { return !*action->isInProgress; }
    /// The button that leaves the editor or, outside it, the screen.
    std::string_view closeLabel() const { return *isEditing ? "Cancel" : "Close"; }
    void close();

    void performAction(DetailAction wanted);

    void addUpdate();
    bool isSaveEnabled() const;
    /// Sends what has been typed; the editor closes when the service has it.
    void saveUpdate();

    void confirmDelete();
    void cancelDelete() { showDeleteConfirmation = false; }
    /// The user confirmed the deletion.
    void deleteIncident();

    bool hasUnsavedText() const;
    /// Escape, or the way back: closes what is open, but asks first where text would be lost.
    void requestClose();
    void keepEditing() { showDiscardConfirmation = false; }
    void discardChanges();

private:
    std::vector<presentation::Command<IncidentDetailView>> commands() const;

    static support::Task<void> acknowledge(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> resolve(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> escalate(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> remove(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> refetch(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> save(std::shared_ptr<IncidentDetailView> self, std::string text);

    const Ports ports_;
    const Owner owner_;
};

}  // namespace larkspan::incidents
