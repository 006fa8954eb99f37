#pragma once

#include <vector>

#include "model/bodies/StatusPagesStatusEnvelope.h"
#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "model/records/StatusPage.h"
#include "platform/Executor.h"
#include "support/Task.h"

namespace larkspan::api {

class KestruneAPI;

}  // namespace larkspan::api

namespace larkspan::core {

/// What one cycle brings back.
struct AccountLists {
    std::vector<model::StatusPage> statusPages;
    std::vector<model::Incident> incidents;
    std::vector<model::Maintenance> maintenances;
};

/// Fetches the whole account, all or nothing, but for the status overview: without it the pages keep the
/// status that they came with. Runs on `main`.
support::Task<AccountLists> fetchAccount(api::KestruneAPI& api, platform::Executor& main);

/// `pages` in their order, each with the status that `entries` gives for its id. The same id twice in `entries`
/// ends the process.
std::vector<model::StatusPage> mergedPages(
    std::vector<model::StatusPage> pages, const std::vector<model::PageStatusEntry>& entries);

}  // namespace larkspan::core
