#pragma once

namespace larkspan::bridge {

/// From now on a screen reader finds in a `SecretField` a place for a password, its name and its focus, but no text. Qt
/// hides the text of a password from the screen, yet hands it out on the accessibility bus, to every program that asks.
void hideSecretsFromAccessibility();

}  // namespace larkspan::bridge
