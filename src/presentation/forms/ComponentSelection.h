#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "api/MonitorEndpoints.h"
#include "model/records/ComponentMonitor.h"
#include "platform/Executor.h"
#include "platform/LocaleText.h"
#include "presentation/forms/ComponentCascade.h"
#include "presentation/shapes/Choice.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The part of a form that asks what is affected: the whole page, or a component of a group and one of its monitors. An
/// empty text always means no selection. Main thread only; its fetches may outlive the form.
class ComponentSelection final : public support::Observable, public std::enable_shared_from_this<ComponentSelection> {
public:
    struct Ports {
        platform::Executor& main;
        api::ComponentEndpoints& components;
        api::MonitorEndpoints& monitors;
        const platform::LocaleText& locale;
    };

    /// Whether the user is told if the components could not be fetched; some forms can do without them.
    enum class ComponentFailure { silent, told };

    /// The texts of one kind of event for the choice of what it affects.
    struct Words {
        /// The entry for no monitor.
        std::string_view noMonitor;
        std::string_view hintForPage;
        std::string_view hintForComponent;
        ComponentFailure failure;
    };

    /// `alert` is called with the words of a failure.
    ComponentSelection(Ports ports, std::string pageId, Words words, std::function<void(std::string)> alert);

    support::Published<Components> components{*this};
    support::Published<ComponentGroups> componentGroups{*this};
    support::Published<std::string> selectedComponentGroupID{*this};
    support::Published<std::string> selectedComponentID{*this};
    support::Published<std::vector<model::ComponentMonitor>> componentMonitors{*this};
    support::Published<std::string> selectedMonitorID{*this};
    support::Published<bool> isLoadingComponents{*this, false};
    support::Published<bool> isLoadingMonitors{*this, false};

    /// Fetches the choices.
    void load();

    void chooseGroup(const std::string& id);
    void chooseComponent(const std::string& id);
    /// Does nothing if the monitor is no longer offered.
    void chooseMonitor(const std::string& id);

    /// The entries of the pickers; the first of each means no selection.
    std::vector<Choice> groupChoices() const;
    std::vector<Choice> componentChoices() const;
    std::vector<Choice> monitorChoices() const;
    /// The hint about the choice of a group, or about the next choice.
    std::string_view hint() const;

    bool showsComponentPicker() const { return !selectedComponentGroupID->empty(); }
    bool isComponentPickerEnabled() const { return !*isLoadingComponents && !offeredComponents_.empty(); }
    bool showsMonitorPicker() const { return !*isLoadingMonitors && !offeredMonitors().empty(); }

private:
    static support::Task<void> fetchChoices(std::shared_ptr<ComponentSelection> self);
    static support::Task<void> fetchMonitors(std::shared_ptr<ComponentSelection> self, std::string componentID);

    void offer(Components fetchedComponents, ComponentGroups fetchedGroups);
    void offerComponentsOfGroup();
    void forgetMonitors();
    /// None without a chosen component, even if monitors arrive late.
    const std::vector<model::ComponentMonitor>& offeredMonitors() const;
    bool isOffered(const std::string& monitorID) const;
    void tell(std::string words, const std::exception_ptr& failure) const;

    const Ports ports_;
    const std::string pageId_;
    const Words words_;
    const std::function<void(std::string)> alert_;
    // Kept because sorting by the locale is too slow for each time the form is drawn.
    ComponentGroups offeredGroups_;
    Components offeredComponents_;
};

}  // namespace larkspan::presentation
