#pragma once

namespace larkspan::bridge {

/// Makes screen readers see which items are disabled and, while a modal popup is open, that the covered items are not
/// showing; actions on such items have no effect. Qt 6.4 does none of this.
void reportUnreachableItems();

}  // namespace larkspan::bridge
