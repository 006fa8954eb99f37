#include "components/StatusPageComponentsView.h"

#include <utility>

#include "components/ComponentDetailView.h"
#include "components/ComponentRow.h"
#include "support/WhileAlive.h"

namespace larkspan::components {

using model::Component;
using support::whileAlive;

StatusPageComponentsView::StatusPageComponentsView(Ports ports, const std::string& pageID)
    : ListScreen(ports.credentials,
          {.loading = "Loading Components...",
              .empty = {.symbol = "square.grid.2x2",
                  .title = "No Components",
                  .text = "This status page has no components yet."}})
    , viewModel(std::make_shared<StatusPageComponentsViewModel>(ports.main, ports.api, pageID))
    , ports_(ports)
{
}

std::vector<ComponentRow> StatusPageComponentsView::rows() const
{
    if (content() != presentation::Content::records) return {};
    return componentRows(*viewModel->components, *viewModel->componentGroups);
}

void StatusPageComponentsView::openComponent(const std::string& id)
{
    const auto* const opened = viewModel->components.find(id);
    if (!opened) return;
    presentedComponent.open(detailOf(*opened));
}

std::vector<std::shared_ptr<presentation::GuardedScreen>> StatusPageComponentsView::inFront() const
{
    return {detail()};
}

std::shared_ptr<ComponentDetailView> StatusPageComponentsView::detailOf(const Component& opened)
{
    const ComponentDetailView::Ports ports{ports_.main, ports_.api, ports_.links};
    const auto view = weak_from_this();
    ComponentDetailView::Owner owner{.onUpdate = whileAlive(view,
                                         [](StatusPageComponentsView& self, const Component& changed) {
                                             self.viewModel->components.replace(changed);
                                         }),
        .onDelete = whileAlive(view, &StatusPageComponentsView::onDelete),
        .dismiss = whileAlive(view, [id = opened.id](StatusPageComponentsView& self) { self.dismiss(id); }),
        .reloadList = whileAlive(view, [](StatusPageComponentsView& self) { self.viewModel->load(); })};
    return std::make_shared<ComponentDetailView>(ports, viewModel->pageId, opened, std::move(owner));
}

void StatusPageComponentsView::onDelete(const Component& deleted)
{
    viewModel->components.remove(deleted.id);
    dismiss(deleted.id);
}

void StatusPageComponentsView::dismiss(const std::string& id)
{
    if (presentedComponent.isOf(id)) closeComponent();
}

void StatusPageComponentsView::closeComponent()
{
    presentedComponent.close();
}

}  // namespace larkspan::components
