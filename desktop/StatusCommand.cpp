#include "StatusCommand.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>
#include <utility>

#include "adapters/StatusService.h"
#include "adapters/SystemClock.h"
#include "api/KestruneAPI.h"
#include "support/LegibleOutside.h"
#include "support/Task.h"
#include "workspace/StatusReports.h"

namespace larkspan {

namespace {

constexpr int couldNotPrint = 3;

support::Task<void> fetchInto(std::shared_ptr<platform::StatusReport> report, workspace::StatusFetchPorts ports)
{
    auto fetching = workspace::fetchedStatusReport(ports);
    *report = co_await std::move(fetching);
    QCoreApplication::quit();
}

int print(const platform::StatusReport& report, bool asJSON)
{
    std::fputs((asJSON ? report.json : report.text).c_str(), stdout);
    // Before the problem, also where both go to one place.
    if (std::fflush(stdout) != 0) {
        std::perror("larkspan");
        return couldNotPrint;
    }
    const auto legible = support::legibleOutside(report.problem, support::Lines::one, report.problem.size());
    if (!legible.empty()) std::fprintf(stderr, "larkspan: %s\n", legible.c_str());
    return report.exitCode;
}

}  // namespace

int printStatus(
    QDBusConnection bus, const QString& name, bool asJSON, const std::function<platform::StatusReport()>& fetch)
{
    const auto told = adapters::StatusService::ask(std::move(bus), name);
    return print(told ? *told : fetch(), asJSON);
}

platform::StatusReport fetchStatus(adapters::MainExecutor& main, ServiceAccess service)
{
    const adapters::SystemClock clock;
    api::KestruneAPI api({service.client, service.transport, service.credentials, clock}, service.host);
    const auto report = std::make_shared<platform::StatusReport>();
    support::start(main, fetchInto(report, {api, main, clock}));
    QCoreApplication::exec();
    service.stop();
    main.drop();
    return *report;
}

}  // namespace larkspan
