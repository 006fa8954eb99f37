#pragma once

namespace larkspan::bridge {

/// From now on a screen reader is told which items are disabled and, while something modal is up, that what it covers
/// does not show; and whatever it orders of such an item comes to nothing. Qt 6.4 sees to none of it.
void tellAccessibilityWhatIsOutOfReach();

}  // namespace larkspan::bridge
