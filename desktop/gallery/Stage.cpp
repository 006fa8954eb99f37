#include "gallery/Stage.h"

namespace larkspan::gallery {

Stage::Stage(adapters::MainExecutor& main)
    : main_(main)
    , state_(core::AppStateManager::make(
          {main_, timers_, clock_, outside_, outside_, menu_, updates_, outside_, outside_, api_}))
    , dashboard_(std::make_shared<workspace::DashboardView>(
          workspace::DashboardView::Ports{main_, timers_, clock_, outside_, keys_, state_, locale_, outside_, api_}))
{
    state_->setupStatusItem({});
}

}  // namespace larkspan::gallery
