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
#include "maintenances/MaintenanceDetailView.h"
#include "model/JSONDecoder.h"

namespace larkspan::maintenances {

using Words = std::vector<std::string>;

inline const std::string recordURL = "https://service.example/user/api/v1/maintenances/7";

inline std::string record(const std::string& rest = "")
{
    return R"({"id": "7", "title": "Upgrade", "status_page_id": "p")" + rest + "}";
}

// It is nine in the morning.
inline const std::string isScheduled = R"(, "start_at": "2026-11-20T10:00:00Z", "end_at": "2026-11-20T12:00:00Z")";
inline const std::string isInProgress = R"(, "start_at": "2026-11-20T08:00:00Z", "end_at": "2026-11-20T12:00:00Z")";
inline const std::string isCompleted = R"(, "start_at": "2026-11-20T07:00:00Z", "end_at": "2026-11-20T08:30:00Z")";
inline const std::string isCancelled = R"(, "status": "cancelled")";

/// A maintenance "7" on the screen.
class DetailOfAMaintenance : public testing::Test, public fakes::Service {
protected:
    model::Maintenance decoded(const std::string& json)
    {
        return model::JSONDecoder(clock).decodeResult<model::Maintenance>(json);
    }

    std::shared_ptr<MaintenanceDetailView> opened(const std::string& rest = isScheduled)
    {
        MaintenanceDetailView::Owner owner{
            .onUpdate = [this](const model::Maintenance& changed) { note("update " + changed.status); },
            .onDelete = [this](const model::Maintenance& deleted) { note("delete " + deleted.id); },
            .dismiss = [this] { note("dismiss"); }};
        view = std::make_shared<MaintenanceDetailView>(
            MaintenanceDetailView::Ports{main, api, clock, locale, links}, decoded(record(rest)), std::move(owner));
        return view;
    }

    std::shared_ptr<MaintenanceDetailView> editing(const std::string& rest = isScheduled)
    {
        opened(rest)->beginEditing();
        return view;
    }

    void note(const std::string& effect)
    {
        effects.push_back(effect + (view && *view->action->isInProgress ? " while busy" : ""));
    }

    void answer(const std::string& rest) { transport.script(recordURL, 200, record(rest)); }

    void press(std::string_view button)
    {
        view->press(button);
        run();
    }

    Words sent() const
    {
        Words lines;
        for (const auto& request : transport.requests) {
            lines.push_back(request.method + " " + request.url.substr(std::string("https://service.example").size())
                + (request.body ? " " + *request.body : ""));
        }
        return lines;
    }

    Words enabledButtons() const
    {
        Words labels;
        for (const auto& button : view->buttons()) {
            if (button.isEnabled) labels.push_back(button.label);
        }
        return labels;
    }

    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    std::shared_ptr<MaintenanceDetailView> view;
    Words effects;
};

}  // namespace larkspan::maintenances
