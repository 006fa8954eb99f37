#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/PageComponents.h"
#include "maintenances/StatusPageMaintenancesView.h"

namespace larkspan::maintenances {

using Words = std::vector<std::string>;

inline std::string workOfThePage(const std::string& id, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "title": "Work )" + id + R"(", "status_page_id": "p")" + rest + "}";
}

/// The maintenances of page "p".
class MaintenancesOfAPage : public testing::Test, public fakes::PageComponents {
protected:
    void serve(const std::vector<std::string>& records)
    {
        std::string list;
        for (const auto& each : records) list += (list.empty() ? "" : ",") + each;
        transport.script(maintenancesURL, 200, "[" + list + "]");
    }

    void appear()
    {
        view->appear();
        run();
    }

    void open(const std::string& id)
    {
        view->openMaintenance(id);
        transport.requests.clear();
    }

    static std::string urlOf(const std::string& id) { return std::string(maintenancesURL) + "/" + id; }

    Words ids() const
    {
        Words all;
        for (const auto& row : view->rows()) all.push_back(row.id);
        return all;
    }

    fakes::FakeLinkOpener links;
    std::shared_ptr<StatusPageMaintenancesView> view = std::make_shared<StatusPageMaintenancesView>(
        StatusPageMaintenancesView::Ports{main, api, api, api, credentials, clock, locale, links}, "p");
};

}  // namespace larkspan::maintenances
