#include "components/StatusPageComponentsView.h"

#include <algorithm>
#include <utility>

namespace larkspan::components {

using model::Component;
using presentation::Content;
using presentation::Placeholder;
using presentation::Tone;

StatusPageComponentsView::StatusPageComponentsView(Ports ports, const std::string& pageID)
    : viewModel(std::make_shared<StatusPageComponentsViewModel>(ports.main, ports.components, pageID))
    , ports_(ports)
{
}

std::array<support::Subscription, 2> StatusPageComponentsView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), viewModel->objectWillChange(observer)};
}

void StatusPageComponentsView::refresh()
{
    ports_.credentials.allowPromptAgain();
    viewModel->loadComponents();
}

Content StatusPageComponentsView::content() const
{
    return presentation::contentOf(!viewModel->components->empty(), *viewModel->isLoading, *viewModel->showErrorAlert);
}

Placeholder StatusPageComponentsView::placeholder() const
{
    switch (content()) {
    case Content::loading: return presentation::loadingPlaceholder("Loading Components...");
    case Content::failure:
        return {.symbol = "exclamationmark.triangle",
            .tone = Tone::yellow,
            .text = viewModel->errorMessage->value_or("Could not load components."),
            .offersRetry = true};
    case Content::empty:
        return {
            .symbol = "square.grid.2x2", .title = "No Components", .text = "This status page has no components yet."};
    case Content::records: break;
    }
    return {};
}

std::vector<ComponentRow> StatusPageComponentsView::rows() const
{
    if (content() != Content::records) return {};
    return componentRows(*viewModel->components, *viewModel->componentGroups);
}

std::string StatusPageComponentsView::alertMessage() const
{
    return viewModel->errorMessage->value_or("An unknown error occurred.");
}

void StatusPageComponentsView::openComponent(const std::string& id)
{
    const auto& components = *viewModel->components;
    const auto opened = std::ranges::find(components, id, &Component::id);
    if (opened == components.end()) return;
    const ComponentDetailView::Ports ports{ports_.main, ports_.components, ports_.links};
    detail_ = std::make_shared<ComponentDetailView>(ports, viewModel->pageId, *opened, ownerOf(*opened));
    detail_->appear();
    presentedComponent = *opened;
}

ComponentDetailView::Owner StatusPageComponentsView::ownerOf(const Component& opened)
{
    const auto view = weak_from_this();
    return {.onUpdate =
                [view](const Component& changed) {
                    if (const auto self = view.lock()) self->onUpdate(changed);
                },
        .onDelete =
            [view](const Component& deleted) {
                if (const auto self = view.lock()) self->onDelete(deleted);
            },
        .dismiss =
            [view, id = opened.id] {
                if (const auto self = view.lock()) self->dismiss(id);
            }};
}

// A request may end behind the list, or behind another component: that one stays in front.
bool StatusPageComponentsView::isPresented(const std::string& id) const
{
    return *presentedComponent && (*presentedComponent)->id == id;
}

void StatusPageComponentsView::onUpdate(const Component& changed)
{
    if (isPresented(changed.id)) presentedComponent = changed;
    auto patched = *viewModel->components;
    const auto row = std::ranges::find(patched, changed.id, &Component::id);
    if (row == patched.end()) return;
    *row = changed;
    viewModel->components = std::move(patched);
}

void StatusPageComponentsView::onDelete(const Component& deleted)
{
    auto patched = *viewModel->components;
    std::erase_if(patched, [&deleted](const Component& each) { return each.id == deleted.id; });
    viewModel->components = std::move(patched);
    dismiss(deleted.id);
}

void StatusPageComponentsView::dismiss(const std::string& id)
{
    if (isPresented(id)) closeComponent();
}

void StatusPageComponentsView::closeComponent()
{
    if (!*presentedComponent) return;
    presentedComponent = std::nullopt;
    detail_.reset();
}

}  // namespace larkspan::components
