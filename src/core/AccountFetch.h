#pragma once

#include <vector>

#include "api/KestruneAPI.h"
#include "model/StatusPage.h"
#include "model/StatusPagesStatusEnvelope.h"
#include "support/Task.h"

namespace larkspan::core {

/// What one cycle brings back.
struct AccountLists {
    std::vector<model::StatusPage> statusPages;
};

/// Fetches the whole account, all or nothing, but for the status overview: without it the pages keep the
/// status that they came with.
support::Task<AccountLists> fetchAccount(api::KestruneAPI& api);

/// `pages` in their order, each with the status that `entries` gives for its id. The same id twice in `entries`
/// ends the process.
std::vector<model::StatusPage> mergedPages(
    std::vector<model::StatusPage> pages, const std::vector<model::PageStatusEntry>& entries);

}  // namespace larkspan::core
