#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/MaintenanceEndpoints.h"
#include "incidents/MessageView.h"
#include "maintenances/MaintenanceStatus.h"
#include "maintenances/MaintenanceTimeline.h"
#include "model/Maintenance.h"
#include "platform/Clock.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/ActionButton.h"
#include "presentation/Command.h"
#include "presentation/Confirmation.h"
#include "presentation/DateTimePicker.h"
#include "presentation/RunningAction.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::maintenances {

/// One maintenance, and what can be done to it. It keeps a copy of its record, which the service's answers replace, and
/// tells its owner of each. Main thread only; closing it stops no request.
class MaintenanceDetailView final : public support::Observable,
                                    public std::enable_shared_from_this<MaintenanceDetailView> {
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
    };

    static constexpr presentation::Confirmation deleteConfirmation{.title = "Delete Maintenance",
        .text = "Are you sure you want to delete this maintenance? This action cannot be undone.",
        .confirm = "Delete",
        .cancel = "Cancel"};

    MaintenanceDetailView(Ports ports, model::Maintenance maintenance, Owner owner);

    /// The record shown. Its status is as it was decoded, also when its start passes meanwhile.
    support::Published<model::Maintenance> currentMaintenance;
    support::Published<bool> showDeleteConfirmation{*this, false};
    /// The question is up whether what was edited may be lost.
    support::Published<bool> showDiscardConfirmation{*this, false};
    support::Published<bool> isEditing{*this, false};
    support::Published<std::string> editedTitle{*this};
    support::Published<std::string> editedMessage{*this};
    const std::shared_ptr<presentation::DateTimePicker> editedScheduledFor;
    const std::shared_ptr<presentation::DateTimePicker> editedScheduledUntil;
    /// The request that runs, and the alert of the one that failed.
    const std::shared_ptr<presentation::RunningAction> action;
    /// The description as it is shown.
    const std::shared_ptr<incidents::MessageView> message;

    /// Calls `observer` before anything changes that the screen shows.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

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
    bool isMenuEnabled() const { return !*action->isInProgress; }
    /// The button that leaves the editor or, outside it, the screen.
    std::string_view closeLabel() const { return *isEditing ? "Cancel" : "Close"; }
    void close();

    void startMaintenance();
    void completeMaintenance();

    void beginEditing();
    bool isSaveEnabled() const;
    /// Sends what was edited; the editor closes when the service has it.
    void saveEdits();

    void confirmDelete();
    void cancelDelete() { showDeleteConfirmation = false; }
    /// The user confirmed the deletion.
    void removeMaintenance();

    bool hasUnsavedText() const;
    /// Escape, or the way back: closes what is open, but asks first where edits would be lost.
    void requestClose();
    void keepEditing() { showDiscardConfirmation = false; }
    void discardChanges();

private:
    std::vector<presentation::Command<MaintenanceDetailView>> commands() const;
    bool hasEditedTitle() const;
    api::MaintenanceChanges edits() const;

    static support::Task<void> update(std::shared_ptr<MaintenanceDetailView> self, api::MaintenanceChanges changes);
    static support::Task<void> save(std::shared_ptr<MaintenanceDetailView> self, api::MaintenanceChanges changes);
    static support::Task<void> remove(std::shared_ptr<MaintenanceDetailView> self);

    const Ports ports_;
    const Owner owner_;
};

}  // namespace larkspan::maintenances
