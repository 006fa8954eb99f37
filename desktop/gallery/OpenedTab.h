#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "gallery/Stage.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan::gallery {

/// Opens a page of the account at one of its tabs. The tab's screen keeps loading until the scene ends that.
workspace::StatusPageDetailView& openTab(Stage& stage, workspace::StatusPageDetailView::Tab tab);

/// A scene of a tab, whose screen is `view` of the page.
template <typename View>
std::function<void(Stage&)> sceneOfTab(workspace::StatusPageDetailView::Tab tab,
    std::shared_ptr<View> (workspace::StatusPageDetailView::*view)() const, std::function<void(View&)> arrange)
{
    return [tab, view, arrange = std::move(arrange)](Stage& stage) { arrange(*(openTab(stage, tab).*view)()); };
}

/// A scene of the form of a new event, which `open` opens over the list that `list` has filled. The choices have been
/// loaded.
template <typename View, typename Form>
std::function<void(View&)> withForm(void (*list)(View& view), void (View::*open)(), std::function<void(Form&)> arrange)
{
    return [list, open, arrange = std::move(arrange)](View& view) {
        list(view);
        (view.*open)();
        view.form()->selection->isLoadingComponents = false;
        arrange(*view.form());
    };
}

/// The list of a tab with one record, which `open` opens in front of it.
template <typename View, typename Record, typename Detail>
std::function<void(View&)> withDetail(
    Record shown, void (View::*open)(const std::string&), std::function<void(Detail&)> arrange)
{
    return [shown = std::move(shown), open, arrange = std::move(arrange)](View& view) {
        view.viewModel->records = std::vector{shown};
        view.viewModel->isLoading = false;
        (view.*open)(shown.id);
        arrange(*view.detail());
    };
}

}  // namespace larkspan::gallery
