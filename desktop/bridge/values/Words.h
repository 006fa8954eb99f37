#pragma once

#include <QString>

#include <string_view>

namespace larkspan::bridge {

/// A text as it is shown: of one that is longer than anybody writes the beginning, since laying it out would hold up
/// the window.
QString words(std::string_view text);

/// A text as it is, for what is edited or comes back: an id, the content of a field.
QString wholeText(std::string_view text);

}  // namespace larkspan::bridge
