#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/IncidentEndpoints.h"
#include "incidents/IncidentPills.h"
#include "incidents/IncidentTimeline.h"
#include "messages/MessageView.h"
#include "model/records/Incident.h"
#include "platform/Clock.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/screens/EditableDetail.h"
#include "presentation/shapes/ActionButton.h"
#include "presentation/shapes/Command.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::incidents {

/// One incident and its actions. It changes no record itself: after each success it passes the service's record to its
/// owner, which passes it back with `show`. Main thread only; closing it cancels no request.
class IncidentDetailView final : public presentation::EditableDetail {
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
        /// Called when it is unknown whether a write took effect: fetches the list again.
        std::function<void()> reloadList = {};
    };

    enum class DetailAction { acknowledge, resolve, escalate, delete_ };

    IncidentDetailView(Ports ports, model::Incident incident, Owner owner);

    support::Published<model::Incident> incident;
    /// The text of the update that is being written.
    support::Published<std::string> editMessage{*this};
    /// The description in its shown form.
    const std::shared_ptr<messages::MessageView> message;

    const std::string& id() const { return incident->id; }
    void show(model::Incident changed) { incident = std::move(changed); }

    std::string title() const { return *isEditing ? "Add Update" : incident->title; }
    std::vector<presentation::Pill> pills() const { return headerPills(*incident); }
    std::vector<presentation::TimelineRow> timeline() const { return incidentTimeline(*incident, ports_.locale); }
    std::string duration() const { return incidentDuration(*incident, ports_.clock.now()); }
    /// The assigned person; empty for nobody.
    std::string assignedTo() const;
    /// The message in markdown.
    std::string description() const { return incident->message.value_or(""); }
    bool showsDescription() const { return !*isEditing && !description().empty(); }

    /// In the order of the screen; none while the editor is open.
    std::vector<presentation::ActionButton> buttons() const;
    /// Performs the action of the button with this id; does nothing if there is none or it is disabled.
    void press(std::string_view id);

    void performAction(DetailAction wanted);

    bool isSaveEnabled() const override;
    /// Sends the typed text; the editor closes when the service has it.
    void saveUpdate();

private:
    std::vector<presentation::Command<IncidentDetailView>> commands() const;
    /// Each update starts empty.
    void fillEditor() override { editMessage = {}; }
    bool isEdited() const override;
    support::Task<void> remove() override;

    static support::Task<void> acknowledge(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> resolve(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> escalate(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> deleteIncident(std::shared_ptr<IncidentDetailView> self);
    static support::Task<void> refetch(std::shared_ptr<IncidentDetailView> self);
    /// Passes on the incident as an action has changed it.
    void take(const model::Incident& answer) const;
    static support::Task<void> save(std::shared_ptr<IncidentDetailView> self, std::string text);

    const Ports ports_;
    const std::function<void(const model::Incident&)> onUpdate_;
};

}  // namespace larkspan::incidents
