#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/StatusItem.h"

namespace larkspan::fakes {

/// An item that records what it was given last and how often.
class FakeStatusItem final : public platform::StatusItem {
public:
    bool isShown() const override { return hasPanel; }
    void onShownChanged(std::function<void()> changed) override { shownChanged = std::move(changed); }
    void show(std::function<void(const platform::MenuRow& row)> perform) override { choose = std::move(perform); }
    void setButton(const Button& newButton) override { button = newButton; }
    void setMenu(const std::vector<platform::MenuRow>& newRows) override
    {
        rows = newRows;
        ++rebuilds;
    }

    std::vector<std::string> titles() const
    {
        std::vector<std::string> found;
        for (const auto& row : rows) found.push_back(row.kind == platform::MenuRow::Kind::separator ? "-" : row.title);
        return found;
    }

    /// Adds or removes the panel.
    void setPanel(bool isThere)
    {
        hasPanel = isThere;
        if (shownChanged) shownChanged();
    }

    std::function<void()> shownChanged;
    std::function<void(const platform::MenuRow& row)> choose;
    Button button;
    std::vector<platform::MenuRow> rows;
    int rebuilds = 0;
    bool hasPanel = true;
};

}  // namespace larkspan::fakes
