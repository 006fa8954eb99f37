#pragma once

namespace larkspan::bridge {

/// From now on a screen reader is told which items are disabled and, while something modal is up, that what it covers
/// does not show. Qt 6.4 says neither.
void tellAccessibilityWhatIsOutOfReach();

}  // namespace larkspan::bridge
