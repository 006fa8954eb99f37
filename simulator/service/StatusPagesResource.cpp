#include "service/StatusPagesResource.h"

#include "json/WireDate.h"

namespace larkspan::simulator {

namespace {

Json wireMetrics(const std::vector<PageMetric>& metrics)
{
    Json::Array list;
    for (const auto& metric : metrics) {
        Json::Object object{{"period", metric.period}};
        if (metric.uptime) object.emplace_back("uptime", *metric.uptime);
        if (metric.incidents) object.emplace_back("incidents", *metric.incidents);
        list.emplace_back(std::move(object));
    }
    return list;
}

Json wirePage(const StatusPage& page)
{
    Json::Object object{{"id", page.id}, {"name", page.name}};
    const auto add = [&object](const char* key, const std::optional<std::string>& text) {
        if (text) object.emplace_back(key, *text);
    };
    add("slug", page.slug);
    add("url", page.url);
    add("description", page.description);
    add("status", page.status);
    if (page.createdAt) object.emplace_back("created_at", wireDate(*page.createdAt));
    if (page.updatedAt) object.emplace_back("updated_at", wireDate(*page.updatedAt));
    if (page.metrics) object.emplace_back("metrics", wireMetrics(*page.metrics));
    return object;
}

Answer listPages(const Call& call)
{
    Json::Array pages;
    pages.reserve(call.account.statusPages.size());
    for (const auto& page : call.account.statusPages) pages.push_back(wirePage(page));
    return {200, Json(std::move(pages))};
}

Answer overview(const Call& call)
{
    Json::Array entries;
    for (const auto& page : call.account.statusPages) {
        if (!page.overview) continue;
        auto status = Json::object({{"code", page.overview->code}, {"label", page.overview->label}});
        entries.push_back(Json::object({{"id", page.id}, {"name", page.name}, {"status", std::move(status)}}));
    }
    return {200, Json::object({{"status_pages", std::move(entries)}})};
}

}  // namespace

void addStatusPagesRoutes(Router& router)
{
    router.add("GET", "/user/api/v1/status-pages", listPages);
    router.add("GET", "/user/api/status-pages/status", overview);
}

}  // namespace larkspan::simulator
