#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/WindowSystem.h"

namespace larkspan::fakes {

/// A window that records calls.
class FakeWindow final : public platform::Window {
public:
    bool isVisible() const override { return visible; }
    bool canBecomeKeyWindow() const override { return canBecomeKey; }
    void setDelegate(std::weak_ptr<platform::WindowDelegate> newDelegate) override
    {
        delegate = std::move(newDelegate);
    }
    void miniaturize() override { calls.emplace_back("miniaturize"); }
    void hide() override { calls.emplace_back("hide"); }
    void deminiaturize() override { calls.emplace_back("deminiaturize"); }
    void makeKeyAndOrderFront() override { calls.emplace_back("makeKeyAndOrderFront"); }

    bool visible = true;
    bool canBecomeKey = true;
    std::weak_ptr<platform::WindowDelegate> delegate;
    std::vector<std::string> calls;
};

class FakeWindowSystem final : public platform::WindowSystem {
public:
    std::vector<std::shared_ptr<platform::Window>> windows() override { return {shown.begin(), shown.end()}; }
    void activateIgnoringOtherApps() override { ++activations; }
    void terminate() override { ++terminations; }

    std::shared_ptr<FakeWindow> addWindow() { return shown.emplace_back(std::make_shared<FakeWindow>()); }

    std::vector<std::shared_ptr<FakeWindow>> shown;
    int activations = 0;
    int terminations = 0;
};

}  // namespace larkspan::fakes
