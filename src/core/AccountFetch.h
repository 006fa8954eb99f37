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

/// The lists that one cycle fetches.
struct AccountLists {
    std::vector<model::StatusPage> statusPages;
    std::vector<model::Incident> incidents;
    std::vector<model::Maintenance> maintenances;
};

/// Fetches the whole account or fails. Only the status overview may fail: the pages then keep the status that they came
/// with. Runs on `main`.
support::Task<AccountLists> fetchAccount(api::KestruneAPI& api, platform::Executor& main);

/// `pages` in their order, each with the status of its id in `entries`. An id that occurs twice in `entries` ends the
/// process.
std::vector<model::StatusPage> mergedPages(
    std::vector<model::StatusPage> pages, const std::vector<model::PageStatusEntry>& entries);

}  // namespace larkspan::core
