#pragma once

#include <optional>
#include <string>

namespace larkspan::support {

/// `text`, or nothing where there is none: an empty entry of a form is left out of the request.
inline std::optional<std::string> unlessEmpty(const std::string& text)
{
    return text.empty() ? std::nullopt : std::optional(text);
}

}  // namespace larkspan::support
