#pragma once

namespace larkspan::presentation {

/// What a colour means; the theme says what it looks like.
enum class Tone { primary, secondary, green, orange, yellow, red, blue, gray };

}  // namespace larkspan::presentation
