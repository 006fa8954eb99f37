#pragma once

namespace larkspan::presentation {

/// The meaning of a colour; the theme defines the colours.
enum class Tone { primary, secondary, green, orange, yellow, red, blue, gray };

}  // namespace larkspan::presentation
