#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/PageComponents.h"

namespace larkspan::fakes {

/// The screen of a list of page "p", with a service whose list at `listURL` is the test's.
template <typename Screen>
class ListOfAPage : public testing::Test, public PageComponents {
protected:
    using Words = std::vector<std::string>;

    explicit ListOfAPage(std::string url)
        : listURL(std::move(url))
    {
    }

    void serve(const Words& records)
    {
        std::string list;
        for (const auto& each : records) list += (list.empty() ? "" : ",") + each;
        transport.script(listURL, 200, "[" + list + "]");
    }

    void appear()
    {
        view->appear();
        run();
    }

    Words ids() const
    {
        Words all;
        for (const auto& row : view->rows()) all.push_back(row.id);
        return all;
    }

    const std::string listURL;
    FakeLinkOpener links;
    std::shared_ptr<Screen> view;
};

/// The name of a list in the tests that apply to all lists.
struct NameOfAList {
    template <typename List>
    static std::string GetName(int /*place*/)
    {
        return List::name;
    }
};

}  // namespace larkspan::fakes
