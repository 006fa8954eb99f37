#pragma once

#include <QString>
#include <QStringList>

namespace larkspan::gallery {

/// Lets this process see only the fonts of the pictures, so that they are the same on every machine, and no slower
/// where hundreds of fonts are installed. Call it before the application object is made.
void chooseDesktopFonts();

/// Makes the interface font the application's font. Ends the process with a sentence if one of the fonts is missing.
void useDesktopFonts();

/// A sentence that names each font that is not in `families`, with the package that brings it; empty if all are there.
QString missingDesktopFonts(const QStringList& families);

}  // namespace larkspan::gallery
