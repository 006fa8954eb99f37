#pragma once

#include <optional>
#include <string>

namespace larkspan::support {

/// `text`, absent if empty: an empty entry of a form is left out of the request.
inline std::optional<std::string> unlessEmpty(const std::string& text)
{
    return text.empty() ? std::nullopt : std::optional(text);
}

}  // namespace larkspan::support
