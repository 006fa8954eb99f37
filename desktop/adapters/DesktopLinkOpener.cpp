#include "adapters/DesktopLinkOpener.h"

#include <QDesktopServices>
#include <QUrl>

#include <chrono>

#include "adapters/HardenProcess.h"
#include "adapters/X11Activation.h"

namespace larkspan::adapters {

namespace {

using namespace std::chrono_literals;

// On Wayland, Qt starts the browser only when the compositor has given it a token.
constexpr std::chrono::milliseconds timeForAToken = 1s;

}  // namespace

DesktopLinkOpener::DesktopLinkOpener()
{
    opening_.setSingleShot(true);
    QObject::connect(&opening_, &QTimer::timeout, forbidCoreDumpsAgain);
}

void DesktopLinkOpener::open(const std::string& address)
{
    // A browser that is started now keeps the limits of this moment for as long as it runs. Qt neither takes limits for
    // what it starts, nor lets others start it with the token that brings it to the front.
    allowCoreDumpsAsGiven();
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
    opening_.start(X11Activation::isNeeded() ? 0ms : timeForAToken);
}

}  // namespace larkspan::adapters
