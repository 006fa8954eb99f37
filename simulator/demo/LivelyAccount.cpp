#include "demo/LivelyAccount.h"

#include "account/EventSeed.h"
#include "account/IncidentWorkflow.h"
#include "account/PageContentsSeed.h"
#include "account/Seed.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

std::vector<StatusPage> pagesOfDemo()
{
    std::vector<StatusPage> pages{seededPage(0, "Acme Cloud", PageHealth::operational),
        seededPage(1, "Beta Payments", PageHealth::majorOutage), seededPage(2, "Gamma Mail", PageHealth::maintenance),
        seededPage(3, "Delta Internal Tools", PageHealth::operational)};
    pages.back().status = "unknown";
    pages.back().overview.reset();
    return pages;
}

}  // namespace

Account livelyAccount(const std::string& key, support::Time now)
{
    Account account;
    account.keys.emplace(key, KeyRights::full);
    account.statusPages = pagesOfDemo();
    account.incidents = seededIncidents(account.statusPages, now);
    account.maintenances = seededMaintenances(account.statusPages, now);
    account.issuedIds = account.incidents.size() + account.maintenances.size();
    addPageContents(account, now);
    account.staff = ordinaryStaff(now);

    Incident slowPayouts;
    slowPayouts.title = "Payouts take longer";
    slowPayouts.message = "Payouts of this morning arrive **up to two hours later** than usual.";
    slowPayouts.statusPageId = "page-2";
    openIncident(account, std::move(slowPayouts), now - 12min);

    // If some maintenance were always scheduled, the account would never be shown as operational.
    std::erase_if(account.maintenances,
        [](const Maintenance& maintenance) { return maintenance.lastPhase == MaintenancePhase::scheduled; });
    for (auto& maintenance : account.maintenances) {
        if (maintenance.isUnderWay()) maintenance.endAt = now + 190s;
    }
    return account;
}

}  // namespace larkspan::simulator
