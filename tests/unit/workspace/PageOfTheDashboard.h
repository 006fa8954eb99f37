#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/PolledAccount.h"
#include "incidents/CreateIncidentView.h"
#include "incidents/StatusPageIncidentsView.h"
#include "workspace/DashboardView.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan::workspace {

/// The dashboard of an account with pages "a" and "b".
class PageOfTheDashboard : public testing::Test, public fakes::PolledAccount {
protected:
    PageOfTheDashboard()
    {
        servePages({"a", "b"}, {});
        refresh();
    }

    const StatusPageDetailView* opened() const { return dashboard->openedPage->get(); }

    /// The page "a", and in it the form of an incident with a title.
    std::shared_ptr<incidents::CreateIncidentView> writeIncident()
    {
        dashboard->openPage("a");
        auto& page = **dashboard->openedPage;
        page.select(StatusPageDetailView::Tab::incidents);
        page.incidents()->openCreateIncident();
        const auto form = page.incidents()->form();
        form->title = "Mail is down";
        run();
        return form;
    }

    /// Runs one cycle, after which the account has only these pages.
    void cycleWith(const std::vector<std::string>& pages)
    {
        servePages(pages, {});
        refresh();
    }

    static constexpr auto incidentsOfA = "https://service.example/user/api/v1/incidents?status_page_id=a";

    api::APIKeyStore keys{client, credentials};
    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    std::shared_ptr<DashboardView> dashboard = std::make_shared<DashboardView>(
        DashboardView::Ports{main, timers, clock, credentials, keys, state, locale, links, api});
};

}  // namespace larkspan::workspace
