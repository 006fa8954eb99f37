#include "adapters/DesktopLinkOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace larkspan::adapters {

void DesktopLinkOpener::open(const std::string& address)
{
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

}  // namespace larkspan::adapters
