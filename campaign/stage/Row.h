#pragma once

#include <vector>

#include "stage/Cells.h"

namespace larkspan::campaign {

/// Plays the cells over the road that the selection means, and looks for the key in what this process has written to
/// its standard error meanwhile. Returns what `main` has to.
int playRow(const std::vector<Cell>& cells, const Selection& selection);

}  // namespace larkspan::campaign
