#pragma once

#include <QString>

#include <string_view>

namespace larkspan::bridge {

/// A text to be shown. Of an extremely long text only the beginning, since laying out all of it would block the window.
QString words(std::string_view text);

/// A name or a title of the service, as `presentation::nameText` words it.
QString nameWords(std::string_view name);

/// An unchanged text, for values that are edited or passed back: an id, the content of a field.
QString wholeText(std::string_view text);

}  // namespace larkspan::bridge
