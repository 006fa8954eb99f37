#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/MaintenanceEndpoints.h"
#include "maintenances/MaintenanceStatus.h"
#include "maintenances/MaintenanceTimeline.h"
#include "messages/MessageView.h"
#include "model/records/Maintenance.h"
#include "platform/Clock.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/screens/EditableDetail.h"
#include "presentation/shapes/ActionButton.h"
#include "presentation/shapes/Command.h"
#include "presentation/shapes/Marker.h"
#include "presentation/time/DateTimePicker.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::maintenances {

/// One maintenance and its actions. It keeps a copy of the record, which the service's answers replace, and reports
/// each to its owner. Main thread only; closing it cancels no request.
class MaintenanceDetailView final : public presentation::EditableDetail {
public:
    struct Ports {
        platform::Executor& main;
        api::MaintenanceEndpoints& api;
        const platform::Clock& clock;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
    };

    struct Owner {
        std::function<void(const model::Maintenance&)> onUpdate;
        std::function<void(const model::Maintenance&)> onDelete;
        /// Closes the screen.
        std::function<void()> dismiss;
        /// Called when it is unknown whether a write took effect: fetches the list again.
        std::function<void()> reloadList = {};
    };

    MaintenanceDetailView(Ports ports, model::Maintenance maintenance, Owner owner);

    /// The shown record. Its status stays as decoded, even if its start passes meanwhile.
    support::Published<model::Maintenance> currentMaintenance;
    support::Published<std::string> editedTitle{*this};
    support::Published<std::string> editedMessage{*this};
    const std::shared_ptr<presentation::DateTimePicker> editedScheduledFor;
    const std::shared_ptr<presentation::DateTimePicker> editedScheduledUntil;
    /// The description in its shown form.
    const std::shared_ptr<messages::MessageView> message;

    const std::string& id() const { return currentMaintenance->id; }
    std::string title() const { return *isEditing ? "Edit Maintenance" : currentMaintenance->title; }
    presentation::Pill status() const { return statusPill(currentMaintenance->status); }
    std::vector<presentation::TimelineRow> timeline() const;
    /// The rows below the divider.
    std::vector<presentation::TimelineRow> recordRows() const;
    /// The message in markdown.
    std::string description() const { return currentMaintenance->message.value_or(""); }
    bool showsDescription() const { return !*isEditing && !description().empty(); }

    /// In the order of the screen; none in the editor.
    std::vector<presentation::ActionButton> buttons() const;
    /// Performs the action of the button with this id; does nothing if there is none or it is disabled.
    void press(std::string_view id);

    /// How long the edited maintenance is. An end before the start is no warning, as the service decides about it.
    presentation::Marker editedLength() const;

    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer) override;

    void startMaintenance();
    void completeMaintenance();

    bool isSaveEnabled() const override;
    /// Sends the edits; the editor closes when the service has them.
    void saveEdits();

private:
    std::vector<presentation::Command<MaintenanceDetailView>> commands() const;
    void fillEditor() override;
    bool isEdited() const override;
    support::Task<void> remove() override;

    bool hasEditedTitle() const;
    api::MaintenanceChanges edits() const;

    static support::Task<void> update(std::shared_ptr<MaintenanceDetailView> self, api::MaintenanceChanges changes);
    static support::Task<void> save(std::shared_ptr<MaintenanceDetailView> self, api::MaintenanceChanges changes);
    static support::Task<void> removeMaintenance(std::shared_ptr<MaintenanceDetailView> self);

    const Ports ports_;
    const std::function<void(const model::Maintenance&)> onUpdate_;
    const std::function<void(const model::Maintenance&)> onDelete_;
};

}  // namespace larkspan::maintenances
