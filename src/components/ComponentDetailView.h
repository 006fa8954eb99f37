#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "components/ComponentStatus.h"
#include "model/bodies/ComponentRequests.h"
#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "presentation/screens/EditableDetail.h"
#include "presentation/shapes/Choice.h"
#include "presentation/shapes/Fact.h"
#include "presentation/text/InPart.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::components {

/// One component, its editor and its deletion. It has a copy of the record and reports each success to its owner, so
/// that nothing is fetched again. Main thread only; closing it cancels no request.
class ComponentDetailView final : public presentation::EditableDetail {
public:
    struct Ports {
        platform::Executor& main;
        api::ComponentEndpoints& api;
        platform::LinkOpener& links;
    };

    struct Owner {
        std::function<void(const model::Component&)> onUpdate;
        std::function<void(const model::Component&)> onDelete;
        /// Closes the screen.
        std::function<void()> dismiss;
        /// Called when it is unknown whether a write took effect: fetches the list again.
        std::function<void()> reloadList = {};
    };

    static constexpr std::string_view title = "Component Details";
    static constexpr std::string_view busyText = "Processing...";

    struct StatusChoice {
        std::string_view label;
        std::string_view value;
    };
    /// The statuses that can be chosen; the service may have others.
    static constexpr std::array<StatusChoice, 3> statusChoices{
        {{"Up", "up"}, {"Degraded", "degraded"}, {"Down", "down"}}};

    ComponentDetailView(Ports ports, std::string page, model::Component shown, Owner owner);

    const std::string pageId;

    support::Published<model::Component> component;
    support::Published<std::vector<model::ComponentGroup>> groups{*this};
    support::Published<std::string> editedName{*this};
    support::Published<std::string> editedStatus{*this, "up"};
    support::Published<std::string> editedDescription{*this};
    support::Published<std::optional<std::string>> editedGroupId{*this};
    /// The base's flag under the name that it has for a component.
    support::Published<bool>& showingDeleteConfirmation = showDeleteConfirmation;

    /// Called when the screen opens: fetches the groups.
    void appear();
    const std::string& id() const { return component->id; }

    presentation::Pill status() const { return componentStatusPill(component->status); }
    bool showsDetails() const;
    /// The rows of the group "Details", which is also shown without any.
    std::vector<presentation::Fact> details() const;
    /// The beginning of the description, to be shown; the editor has all of it. Empty for none.
    std::string description() const
    {
        return presentation::inPart(component->description.value_or(""), presentation::mostOfAText);
    }
    /// Opens the component's address; any other than a web address is not opened.
    void openURL() const;

    /// The index of the edited status in those that can be chosen; absent for any other status.
    std::optional<std::size_t> selectedStatus() const;
    /// Names the edited status if it cannot be chosen; otherwise empty.
    std::string unlistedStatus() const;
    void chooseStatus(std::size_t place) { editedStatus = std::string(statusChoices.at(place).value); }
    bool showsGroupPicker() const { return !groups->empty(); }
    std::vector<presentation::Choice> groupChoices() const { return presentation::choicesOf("None", *groups); }
    /// Empty for no group.
    std::string selectedGroup() const { return editedGroupId->value_or(""); }
    void chooseGroup(const std::string& id);
    bool isSaveEnabled() const override;
    void saveChanges();
    bool isCloseEnabled() const override { return isIdle(); }

private:
    void fillEditor() override;
    bool isEdited() const override;
    support::Task<void> remove() override;

    static support::Task<void> loadGroups(std::shared_ptr<ComponentDetailView> self);
    static support::Task<void> save(std::shared_ptr<ComponentDetailView> self, model::UpdateComponentRequest changes);
    static support::Task<void> deleteComponent(std::shared_ptr<ComponentDetailView> self);

    const model::ComponentGroup* group() const;

    const Ports ports_;
    const std::function<void(const model::Component&)> onUpdate_;
    const std::function<void(const model::Component&)> onDelete_;
};

}  // namespace larkspan::components
