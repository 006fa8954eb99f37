#pragma once

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// Passes one item to several places that show it: the panel and the window's menu button. They must outlive this
/// object, and are told only of differences: a menu is rebuilt more often than it changes.
class StatusItems final : public platform::StatusItem {
public:
    explicit StatusItems(std::vector<std::reference_wrapper<platform::StatusItem>> items)
        : items_(std::move(items))
    {
    }

    bool isShown() const override
    {
        return std::ranges::any_of(items_, [](const auto& item) { return item.get().isShown(); });
    }

    void onShownChanged(std::function<void()> changed) override
    {
        for (auto& item : items_) item.get().onShownChanged(changed);
    }

    void show(std::function<void(const platform::MenuRow& row)> perform) override
    {
        for (auto& item : items_) item.get().show(perform);
    }

    void setButton(const Button& button) override
    {
        if (button == button_) return;
        button_ = button;
        for (auto& item : items_) item.get().setButton(button);
    }

    void setMenu(const std::vector<platform::MenuRow>& rows) override
    {
        if (rows == rows_) return;
        rows_ = rows;
        for (auto& item : items_) item.get().setMenu(rows);
    }

private:
    std::vector<std::reference_wrapper<platform::StatusItem>> items_;
    Button button_;
    std::vector<platform::MenuRow> rows_;
};

}  // namespace larkspan::adapters
