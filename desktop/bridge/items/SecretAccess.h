#pragma once

namespace larkspan::bridge {

/// Makes screen readers find in a `SecretField` a password field with its name and its focus, but without its text. Qt
/// hides the text of a password on screen, yet reveals it on the accessibility bus to every program that asks.
void hideSecretsFromAccessibility();

}  // namespace larkspan::bridge
