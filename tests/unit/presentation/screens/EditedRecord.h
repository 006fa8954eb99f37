#pragma once

#include <algorithm>
#include <memory>
#include <string>

#include "components/ComponentDetailView.h"
#include "components/ComponentRow.h"
#include "components/StatusPageComponentsView.h"
#include "fakes/ListOfAPage.h"
#include "incidents/IncidentsOfAPage.h"
#include "maintenances/MaintenancesOfAPage.h"

namespace larkspan::presentation {

class EditedIncident : public incidents::IncidentsOfAPage {
public:
    static constexpr auto name = "Incident";

protected:
    void open() { view->openIncident("1"); }
    void type(const std::string& text) { view->detail()->editMessage = text; }
    std::string typed() const { return *view->detail()->editMessage; }
    void save() { view->detail()->saveUpdate(); }

    const std::string recordURL = std::string(incidentsURL) + "/1";
    static constexpr auto textField = "message";
};

class EditedMaintenance : public maintenances::MaintenancesOfAPage {
public:
    static constexpr auto name = "Maintenance";

protected:
    void open() { view->openMaintenance("1"); }
    void type(const std::string& text) { view->detail()->editedMessage = text; }
    std::string typed() const { return *view->detail()->editedMessage; }
    void save() { view->detail()->saveEdits(); }

    const std::string recordURL = urlOf("1");
    static constexpr auto textField = "message";
};

class EditedComponent : public fakes::ListOfAPage<components::StatusPageComponentsView> {
public:
    static constexpr auto name = "Component";

protected:
    EditedComponent()
        : ListOfAPage(componentsURL)
    {
        view = std::make_shared<components::StatusPageComponentsView>(
            components::StatusPageComponentsView::Ports{main, api, credentials, links}, "p");
    }

    static std::string record(const std::string& id, const std::string& rest = "")
    {
        return R"({"id": ")" + id + R"(", "name": "Component )" + id + "\"" + rest + "}";
    }

    void open() { view->openComponent("1"); }
    void type(const std::string& text) { view->detail()->editedDescription = text; }
    std::string typed() const { return *view->detail()->editedDescription; }
    void save() { view->detail()->saveChanges(); }

    const std::string recordURL = "https://service.example/user/api/components/1";
    static constexpr auto textField = "description";
};

/// The opened record "1" of a list with "1" and "2", with an unsaved text in its editor.
template <typename Record>
class EditedRecord : public Record {
protected:
    EditedRecord()
    {
        this->serve({this->record("1"), this->record("2")});
        this->appear();
        this->open();
        this->run();
        this->view->detail()->beginEditing();
        this->type(text);
        this->transport.requests.clear();
    }

    /// The record as the service returns it once the text is saved.
    std::string saved() const
    {
        return this->record("1", std::string(R"(, ")") + Record::textField + R"(": ")" + text + "\"");
    }

    bool isListed(const std::string& id) const
    {
        const auto ids = this->ids();
        return std::ranges::find(ids, id) != ids.end();
    }

    auto& detail() const { return *this->view->detail(); }
    bool isOpened() const { return this->view->detail() != nullptr; }

    static constexpr auto text = "We look into it";
};

}  // namespace larkspan::presentation
