#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/PageComponents.h"

namespace larkspan::fakes {

/// The form of a new event on the page "p", and the calls to its owner.
template <typename Form>
class OpenedForm : public testing::Test, public PageComponents {
protected:
    using Words = std::vector<std::string>;

    /// `answer` is the service's answer from `eventsURL`.
    OpenedForm(std::string eventsURL, std::string answer)
        : created(std::move(answer))
        , eventsURL_(std::move(eventsURL))
    {
    }

    virtual std::shared_ptr<Form> made() = 0;

    /// The opened form, with the components loaded.
    std::shared_ptr<Form> opened()
    {
        form = made();
        form->appear();
        run();
        transport.requests.clear();
        return form;
    }

    std::shared_ptr<Form> titled(const std::string& title)
    {
        opened()->title = title;
        return form;
    }

    void choose(const std::string& group, const std::string& component)
    {
        form->selection->chooseGroup(group);
        form->selection->chooseComponent(component);
        run();
        transport.requests.clear();
    }

    void note(const std::string& effect)
    {
        effects.push_back(effect + (form && *form->action->isInProgress ? " while busy" : ""));
    }

    /// Presses "Save" and returns the body of the request.
    std::string saved()
    {
        transport.script(eventsURL_, 200, created);
        form->save();
        run();
        return transport.requests.empty() ? "nothing" : transport.requests.back().body.value_or("none");
    }

    const std::string created;
    std::shared_ptr<Form> form;
    Words effects;

private:
    const std::string eventsURL_;
};

}  // namespace larkspan::fakes
