#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "components/ComponentDetailView.h"
#include "components/ComponentsOfAPage.h"
#include "model/json/JSONDecoder.h"

namespace larkspan::components {

/// A component "7" on the screen, and the effects that are reported to its owner.
class DetailOfAComponent : public testing::Test, public ComponentsOfAPage {
protected:
    DetailOfAComponent() { serveGroups({groupRecord("a"), groupRecord("b")}); }

    /// With the groups, if the service returns them; the requests for them are forgotten.
    std::shared_ptr<ComponentDetailView> opened(const std::string& rest = "")
    {
        ComponentDetailView::Owner owner{
            .onUpdate = [this](const model::Component& changed) { note("update", changed); },
            .onDelete = [this](const model::Component& deleted) { note("delete", deleted); },
            .dismiss = [this] { note("dismiss", *view->component); }};
        auto component = model::JSONDecoder(clock).decodeResult<model::Component>(componentRecord("7", rest));
        view = std::make_shared<ComponentDetailView>(
            ComponentDetailView::Ports{main, api, links}, "p", std::move(component), std::move(owner));
        view->appear();
        run();
        transport.requests.clear();
        return view;
    }

    std::shared_ptr<ComponentDetailView> editing(const std::string& rest = "")
    {
        opened(rest)->beginEditing();
        return view;
    }

    void save()
    {
        view->saveChanges();
        run();
    }

    void note(const std::string& effect, const model::Component& about)
    {
        effects.push_back(
            effect + " " + about.name + (*view->isEditing ? " editing" : "") + (view->isIdle() ? "" : " busy"));
    }

    const std::string url = std::string(recordURL) + "7";
    std::shared_ptr<ComponentDetailView> view;
    Words effects;
};

inline const std::string whole = R"(, "monitor_state": "operational", "description": "Serves all.",
    "component_group_id": "b", "url": "https://status.example/parts/7")";

}  // namespace larkspan::components
