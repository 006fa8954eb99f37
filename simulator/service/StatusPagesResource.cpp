#include "account/Account.h"
#include "service/Known.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"
#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

Json wireMetric(const PageMetric& metric)
{
    return wireRecord({{"period", metric.period}, {"uptime", metric.uptime}, {"incidents", metric.incidents}});
}

std::optional<Json> wireMetrics(const std::optional<std::vector<PageMetric>>& metrics)
{
    if (!metrics) return std::nullopt;
    return wireList(*metrics, wireMetric);
}

Json wirePage(const StatusPage& page)
{
    return wireRecord({
        {"id", page.id},
        {"name", page.name},
        {"slug", page.slug},
        {"url", page.url},
        {"description", page.description},
        {"status", page.status},
        {"created_at", page.createdAt},
        {"updated_at", page.updatedAt},
        {"metrics", wireMetrics(page.metrics)},
    });
}

Json wireOverview(const std::vector<StatusPage>& pages)
{
    auto entries = Json::array();
    for (const auto& page : pages) {
        if (!page.overview) continue;
        auto status = wireRecord({{"code", page.overview->code}, {"label", page.overview->label}});
        entries.push_back(wireRecord({{"id", page.id}, {"name", page.name}, {"status", std::move(status)}}));
    }
    return wireRecord({{"status_pages", std::move(entries)}});
}

StatusPage& named(const Call& call)
{
    return known(call.account.findPage(call.wildcards.front()));
}

Answer updatePage(const Call& call)
{
    auto& page = named(call);
    const RequestBody body(call.request);
    const auto title = body.textNotBlank("title");
    const auto description = body.text("description");
    if (!title && !description) throw Refusal(422, "There is nothing to change.");
    if (title) page.name = *title;
    if (description) page.description = description;
    page.updatedAt = call.now;
    return ok(wirePage(page));
}

Answer countViews(const Call& call)
{
    return ok(wireRecord({{"period", "30d"}, {"view_count", named(call).viewsOfMonth}}));
}

Answer countSubscribers(const Call& call)
{
    return ok(wireRecord({{"count", named(call).subscribers}}));
}

}  // namespace

void addStatusPagesRoutes(Router& router)
{
    router.add("GET", "/user/api/v1/status-pages",
        [](const Call& call) { return ok(wireList(call.account.statusPages, wirePage)); });
    router.add("GET", "/user/api/status-pages/status",
        [](const Call& call) { return ok(wireOverview(call.account.statusPages)); });
    router.add("PATCH", "/user/api/v1/status-pages/*", updatePage);
    router.add("GET", "/user/api/analytics/status-pages/*/views", countViews);
    router.add("GET", "/user/api/v1/status-pages/*/subscribers/count", countSubscribers);
}

}  // namespace larkspan::simulator
