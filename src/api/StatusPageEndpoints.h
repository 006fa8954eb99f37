#pragma once

#include <stop_token>
#include <string>
#include <vector>

#include "support/Task.h"

namespace larkspan::model {

struct PageStatusEntry;
struct StatusPage;
struct StatusPageAnalytics;
struct SubscriberCount;
struct UpdateStatusPageRequest;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// The operations on the account's status pages.
class StatusPageEndpoints {
public:
    explicit StatusPageEndpoints(RequestEngine& engine);

    support::Task<std::vector<model::StatusPage>> fetchStatusPages(std::stop_token stop = {});
    support::Task<std::vector<model::PageStatusEntry>> fetchStatusPageStatuses(std::stop_token stop = {});
    support::Task<model::StatusPage> updateStatusPage(std::string id, model::UpdateStatusPageRequest changes);
    support::Task<model::StatusPageAnalytics> fetchStatusPageViews(std::string pageId);
    support::Task<model::SubscriberCount> fetchSubscriberCount(std::string pageId);

private:
    support::Task<std::vector<model::PageStatusEntry>> statusPageStatuses(std::stop_token stop);

    RequestEngine& engine_;
};

}  // namespace larkspan::api
