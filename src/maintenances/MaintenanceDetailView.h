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
#include "presentation/time/DateTimePicker.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::maintenances {

/// One maintenance, and what can be done to it. It keeps a copy of its record, which the service's answers replace, and
/// tells its owner of each. Main thread only; closing it stops no request.
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
        /// Nobody knows whether an order took place: fetches the list anew.
        std::function<void()> lookAgain = {};
    };

    MaintenanceDetailView(Ports ports, model::Maintenance maintenance, Owner owner);

    /// The record shown. Its status is as it was decoded, also when its start passes meanwhile.
    support::Published<model::Maintenance> currentMaintenance;
    support::Published<std::string> editedTitle{*this};
    support::Published<std::string> editedMessage{*this};
    const std::shared_ptr<presentation::DateTimePicker> editedScheduledFor;
    const std::shared_ptr<presentation::DateTimePicker> editedScheduledUntil;
    /// The description as it is shown.
    const std::shared_ptr<incidents::MessageView> message;

    const std::string& id() const { return currentMaintenance->id; }
    std::string title() const { return *isEditing ? "Edit Maintenance" : currentMaintenance->title; }
    presentation::Pill status() const { return statusPill(currentMaintenance->status); }
    std::vector<presentation::TimelineRow> timeline() const;
    /// Those below the divider.
    std::vector<presentation::TimelineRow> recordRows() const;
    /// The message in markdown.
    std::string description() const { return currentMaintenance->message.value_or(""); }
    bool showsDescription() const { return !*isEditing && !description().empty(); }

    /// In the order of the screen; none in the editor.
    std::vector<presentation::ActionButton> buttons() const;
    /// Does what the button of that id says; nothing if there is none or it is disabled.
    void press(std::string_view id);

    void startMaintenance();
    void completeMaintenance();

    bool isSaveEnabled() const override;
    /// Sends what was edited; the editor closes when the service has it.
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
