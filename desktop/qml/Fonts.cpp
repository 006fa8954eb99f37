#include "qml/Fonts.h"

#include <QFontDatabase>
#include <QThreadPool>

namespace larkspan {

void lookUpFonts()
{
    // Reading their configuration takes a tenth of the time until the first frame, and can run while the screens load.
    // Any query makes the database read it, under a lock that the first text waits for.
    QThreadPool::globalInstance()->start([] { static_cast<void>(QFontDatabase::families()); });
}

}  // namespace larkspan
