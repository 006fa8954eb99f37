#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
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

/// The part of a form that asks what is affected: the whole page, or a component of a group and one of its monitors.
/// The empty text stands for no selection throughout. Main thread only; what it fetches outlives the form.
class ComponentSelection final : public support::Observable, public std::enable_shared_from_this<ComponentSelection> {
public:
    struct Ports {
        platform::Executor& main;
        api::ComponentEndpoints& components;
        api::MonitorEndpoints& monitors;
        const platform::LocaleText& locale;
    };

    /// A form that can do without components need not tell that they could not be fetched.
    enum class ComponentFailure { silent, told };

    /// `alert` is given the words of a failure.
    ComponentSelection(
        Ports ports, std::string pageId, ComponentFailure failure, std::function<void(std::string)> alert);

    support::Published<Components> components{*this};
    support::Published<ComponentGroups> componentGroups{*this};
    support::Published<std::string> selectedComponentGroupID{*this};
    support::Published<std::string> selectedComponentID{*this};
    support::Published<std::vector<model::ComponentMonitor>> componentMonitors{*this};
    support::Published<std::string> selectedMonitorID{*this};
    support::Published<bool> isLoadingComponents{*this, false};
    support::Published<bool> isLoadingMonitors{*this, false};

    /// Fetches what there is to choose from.
    void load();

    void chooseGroup(const std::string& id);
    void chooseComponent(const std::string& id);
    /// Nothing where it is not offered any more.
    void chooseMonitor(const std::string& id);

    /// The entries of the pickers; the first of each stands for no selection.
    std::vector<Choice> groupChoices() const;
    std::vector<Choice> componentChoices() const;
    std::vector<Choice> monitorChoices(std::string nameOfNone) const;

    bool showsComponentPicker() const { return !selectedComponentGroupID->empty(); }
    bool isComponentPickerEnabled() const { return !*isLoadingComponents && !offeredComponents_.empty(); }
    bool showsMonitorPicker() const { return !*isLoadingMonitors && !offeredMonitors().empty(); }

private:
    static support::Task<void> fetchChoices(std::shared_ptr<ComponentSelection> self);
    static support::Task<void> fetchMonitors(std::shared_ptr<ComponentSelection> self, std::string componentID);

    void offer(Components fetchedComponents, ComponentGroups fetchedGroups);
    void offerComponentsOfGroup();
    void forgetMonitors();
    /// None without a component, whatever came late.
    const std::vector<model::ComponentMonitor>& offeredMonitors() const;
    bool isOffered(const std::string& monitorID) const;
    void tell(std::string words, const std::exception_ptr& failure) const;

    const Ports ports_;
    const std::string pageId_;
    const ComponentFailure failure_;
    const std::function<void(std::string)> alert_;
    // Kept because sorting by the locale is too dear for each time that the form is drawn.
    ComponentGroups offeredGroups_;
    Components offeredComponents_;
};

}  // namespace larkspan::presentation
