#pragma once

#include "model/KeyTable.h"
#include "model/RawTexts.h"
#include "model/StatusPage.h"

namespace larkspan::model {

template <>
struct RawTexts<StatusPageStatus> {
    static constexpr RawText<StatusPageStatus> table[] = {
        {"operational", StatusPageStatus::operational},
        {"degraded", StatusPageStatus::degraded},
        {"down", StatusPageStatus::down},
        {"maintenance", StatusPageStatus::maintenance},
        {"unknown", StatusPageStatus::unknown},
    };
};

template <>
struct KeyTable<StatusPageMetric> {
    static constexpr auto rows = std::tuple{
        required("period", &StatusPageMetric::period),
        optional("uptime", &StatusPageMetric::uptime),
        optional("incidents", &StatusPageMetric::incidents),
    };
};

template <>
struct KeyTable<StatusPage> {
    static constexpr auto rows = std::tuple{
        required("id", &StatusPage::id),
        required("name", &StatusPage::name),
        optional("slug", &StatusPage::slug),
        optional("url", &StatusPage::url),
        optional("description", &StatusPage::description),
        defaulted("status", &StatusPage::status, StatusPageStatus::unknown),
        optional("createdAt", &StatusPage::createdAt),
        optional("updatedAt", &StatusPage::updatedAt),
        optional("metrics", &StatusPage::metrics),
    };
};

}  // namespace larkspan::model
