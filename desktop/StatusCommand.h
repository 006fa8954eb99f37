#pragma once

#include <QDBusConnection>
#include <QString>

#include <functional>

#include "ServiceAccess.h"
#include "adapters/MainExecutor.h"
#include "platform/StatusReport.h"

namespace larkspan {

/// Prints the status to the terminal, its problem to standard error, and returns the exit code. The running program
/// with this `name` on the session's `bus` is asked, and only if it has no answer, `fetch` is called. Needs a
/// `QCoreApplication`.
int printStatus(
    QDBusConnection bus, const QString& name, bool asJSON, const std::function<platform::StatusReport()>& fetch);

/// Fetches the account once, without a window; blocks until the answer is there.
platform::StatusReport fetchStatus(adapters::MainExecutor& main, ServiceAccess service);

}  // namespace larkspan
