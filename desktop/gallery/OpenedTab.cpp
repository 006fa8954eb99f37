#include "gallery/OpenedTab.h"

#include <chrono>
#include <vector>

namespace larkspan::gallery {

using namespace std::chrono_literals;

workspace::StatusPageDetailView& openTab(Stage& stage, workspace::StatusPageDetailView::Tab tab)
{
    model::StatusPage page;
    page.id = "a";
    page.name = "Acme Cloud";
    // With a key a load starts, which does not end as nothing answers.
    stage.storeKey();
    stage.state().statusPages = std::vector{page};
    stage.state().lastRefresh = now() - 12s;
    stage.dashboard().openPage(page.id);
    auto& opened = **stage.dashboard().openedPage;
    opened.select(tab);
    return opened;
}

}  // namespace larkspan::gallery
