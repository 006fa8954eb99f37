#include "adapters/ImmediateExit.h"

#include <QtGlobal>

#include <atomic>
#include <cstdlib>

namespace larkspan::adapters {

namespace {

std::atomic<bool> isImmediate = false;
std::atomic<QtMessageHandler> usualHandler = nullptr;

void endAtOnce()
{
    // The code is that of Qt, which has written what is wrong.
    if (isImmediate) std::_Exit(EXIT_FAILURE);
}

/// Qt warns before it calls `exit`. What is registered last is called first, before anything is destroyed that was
/// made meanwhile.
void registerAtEachWarning(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    constexpr int mostRegistrations = 1'000;
    static std::atomic<int> registrations = 0;
    if (type == QtWarningMsg && registrations++ < mostRegistrations) std::atexit(&endAtOnce);
    usualHandler.load()(type, context, text);
}

}  // namespace

ImmediateExit::ImmediateExit()
{
    usualHandler = qInstallMessageHandler(&registerAtEachWarning);
    isImmediate = true;
}

ImmediateExit::~ImmediateExit()
{
    isImmediate = false;
    qInstallMessageHandler(usualHandler);
}

}  // namespace larkspan::adapters
