#pragma once

#include "gallery/Stage.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan::gallery {

/// Opens a page of the account at one of its tabs. What the tab's screen loads goes on for as long as the scene lets
/// it.
workspace::StatusPageDetailView& openTab(Stage& stage, workspace::StatusPageDetailView::Tab tab);

}  // namespace larkspan::gallery
