#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Desk.h"
#include "presentation/screens/RunningAction.h"

namespace larkspan::campaign {

/// An order on a screen, ready to be given.
struct Order {
    std::shared_ptr<presentation::RunningAction> action;
    std::function<void()> give;
    /// What the person has typed and chosen, as the screen has it.
    std::function<std::vector<std::string>()> typed = [] { return std::vector<std::string>(); };
    /// Leaves the screen; what was typed may be lost.
    std::function<void()> close = [] {};
    /// The screen itself; nothing else at the desk keeps it.
    std::shared_ptr<void> screen;
};

/// A kind of order that the program's screens give.
struct OrderKind {
    /// The name, and how the client takes the answer.
    Operation operation;
    std::function<Order(Desk&)> prepared;
};

const std::vector<OrderKind>& orderKinds();

// For `orderKinds`, by screen.
std::vector<OrderKind> typedOrders();
std::vector<OrderKind> pressedOrders();

}  // namespace larkspan::campaign
