#pragma once

#include <memory>
#include <string>

#include "fakes/ListOfAPage.h"
#include "monitors/MonitorDetailView.h"
#include "monitors/MonitorRow.h"
#include "monitors/MonitorRowView.h"
#include "monitors/StatusPageMonitorsView.h"

namespace larkspan::monitors {

class MonitorsOfAPage : public fakes::ListOfAPage<StatusPageMonitorsView> {
public:
    static constexpr auto name = "Monitors";

protected:
    static constexpr auto loadingText = "Loading Monitors...";

    MonitorsOfAPage()
        : ListOfAPage("https://service.example/user/api/v1/monitors")
    {
        const StatusPageMonitorsView::Ports ports{main, api, credentials, locale, links};
        view = std::make_shared<StatusPageMonitorsView>(ports, page());
    }

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

    void open(const std::string& id)
    {
        view->openMonitor(id);
        transport.requests.clear();
    }

    static model::StatusPage page()
    {
        model::StatusPage page;
        page.id = "p";
        return page;
    }
};

}  // namespace larkspan::monitors
