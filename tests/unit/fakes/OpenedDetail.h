#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/ScriptedService.h"
#include "model/json/JSONDecoder.h"

namespace larkspan::fakes {

/// The screen of one record with its service, and the calls to its owner.
template <typename Detail>
class OpenedDetail : public testing::Test, public ScriptedService {
protected:
    using Words = std::vector<std::string>;

    template <typename Record>
    Record decoded(const std::string& json)
    {
        return model::JSONDecoder(clock).decodeResult<Record>(json);
    }

    void note(const std::string& effect)
    {
        effects.push_back(effect + (view && *view->action->isInProgress ? " while busy" : ""));
    }

    void press(std::string_view button)
    {
        view->press(button);
        run();
    }

    Words enabledButtons() const
    {
        Words labels;
        for (const auto& button : view->buttons()) {
            if (button.isEnabled) labels.push_back(button.label);
        }
        return labels;
    }

    FakeLocaleText locale;
    FakeLinkOpener links;
    std::shared_ptr<Detail> view;
    Words effects;
};

}  // namespace larkspan::fakes
