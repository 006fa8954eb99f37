#pragma once

#include <optional>

#include "core/AppStateManager.h"
#include "platform/Clock.h"
#include "platform/Executor.h"
#include "platform/StatusReport.h"
#include "support/Task.h"

namespace larkspan::api {

class KestruneAPI;

}  // namespace larkspan::api

namespace larkspan::workspace {

/// What the running program knows; empty until its first cycle has ended.
std::optional<platform::StatusReport> statusReport(const core::AppStateManager& state);

/// What a process without a window needs to know the status.
struct StatusFetchPorts {
    api::KestruneAPI& api;
    platform::Executor& main;
    const platform::Clock& clock;
};

/// Fetches the account once; a failure is told in the report. Runs on `main`.
support::Task<platform::StatusReport> fetchedStatusReport(StatusFetchPorts ports);

}  // namespace larkspan::workspace
