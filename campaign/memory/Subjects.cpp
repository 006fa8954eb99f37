#include "memory/Subjects.h"

#include <memory>

#include "account/Seed.h"
#include "adapters/tray/DBusMenuModel.h"
#include "core/StatusMenu.h"
#include "fakes/ManualClock.h"
#include "memory/LivingAccount.h"
#include "messages/markdown/StatusMarkdownContent.h"
#include "model/bodies/IncidentRequests.h"
#include "model/bodies/MaintenanceRequests.h"
#include "model/json/JSONDecoder.h"
#include "model/json/JSONEncoder.h"
#include "model/records/Incident.h"

namespace larkspan::campaign {

namespace {

constexpr const char* incidents
    = R"({"data": [{"id": "7", "title": "Elevated errors \u00fcber all", "message": "We look",
    "created_at": "2026-03-01T09:30:00Z", "ended_at": "2026-03-01T09:32:00.123Z", "acknowledged_at": "x",
    "incident_state_id": "2", "unknown": {"deep": [1, 2.5, "three", null, true]}},
    {"id": "8", "title": "Slow checkout", "created_at": "2026-11-19T08:00:00+01:00"}]})";

constexpr const char* message = R"(# Elevated errors on sign-in

We see **elevated errors** for `POST /session` in *eu-west*, ~~since 09:30~~ since 09:12 UTC.
The [status dashboard](https://dashboard.example/d/sign-in?from=now-1h "last hour") has the details.

- EU region only
1. Watch &amp; wait

> Next update at 11:00.

| region | errors |
|---|---:|
| eu-west | 12 % |
)";

void decode()
{
    const fakes::ManualClock clock;
    const model::JSONDecoder decoder(clock);
    static_cast<void>(decoder.decodeResult<std::vector<model::Incident>>(incidents));
}

void encode()
{
    const model::JSONEncoder encoder;
    encoder.encode(model::CreateIncidentRequest{.title = std::string(200, 't'),
        .message = std::string(2000, 'm'),
        .statusPageId = "page-1",
        .componentId = {},
        .monitorId = {},
        .notifySubscribers = true});
    encoder.encode(model::AppendIncidentUpdateRequest{.message = "\"quoted\"\n\u00e4", .incidentStateId = "3"});
}

void readMarkdown()
{
    messages::StatusMarkdownContent(message).rows();
}

void buildMenu(LivingAccount& account)
{
    adapters::DBusMenuModel model;
    model.setRows(account.menu());
    model.layout(adapters::DBusMenuModel::rootId, -1, {});
    account.refresh();
    model.setRows(account.menu());
}

}  // namespace

std::vector<Subject> subjects()
{
    // Its first cycle has made what stays.
    const auto account = std::make_shared<LivingAccount>();
    account->refresh();
    return {{"decoding", decode}, {"encoding", encode}, {"markdown", readMarkdown},
        {"menu", [account] { buildMenu(*account); }}};
}

}  // namespace larkspan::campaign
