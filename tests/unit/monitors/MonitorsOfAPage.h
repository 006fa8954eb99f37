#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/Service.h"
#include "monitors/StatusPageMonitorsView.h"

namespace larkspan::monitors {

using Words = std::vector<std::string>;

/// The monitors of the page "p", in front of a service that lists what the test says.
class MonitorsOfAPage : public testing::Test, public fakes::Service {
protected:
    static inline const std::string listURL = "https://service.example/user/api/v1/monitors";

    static std::string metricsURL(const std::string& id)
    {
        return "https://service.example/user/api/monitors/metrics?ids=" + id + "&range=24h";
    }

    static std::string actionURL(const std::string& id, const std::string& action)
    {
        return "https://service.example/user/api/monitors/" + id + "/" + action;
    }

    static std::string record(
        const std::string& id, const std::string& rest = R"("status_page_id": "p", "state": "up")")
    {
        return R"({"id": ")" + id + R"(", "name": "Monitor )" + id + R"(", "type": "http", )" + rest + "}";
    }

    void serve(const Words& records)
    {
        std::string list;
        for (const auto& each : records) list += (list.empty() ? "" : ",") + each;
        transport.script(listURL, 200, "[" + list + "]");
    }

    void appear()
    {
        view->appear();
        run();
    }

    Words ids() const
    {
        Words all;
        for (const auto& row : view->rows()) all.push_back(row.id);
        return all;
    }

    static model::StatusPage page()
    {
        model::StatusPage page;
        page.id = "p";
        return page;
    }

    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    std::shared_ptr<StatusPageMonitorsView> view = std::make_shared<StatusPageMonitorsView>(
        StatusPageMonitorsView::Ports{main, api, credentials, locale, links}, page());
};

}  // namespace larkspan::monitors
