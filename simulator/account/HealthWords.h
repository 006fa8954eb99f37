#pragma once

#include <string_view>

#include "account/StatusPage.h"

namespace larkspan::simulator {

struct Account;

/// The state of a page in the words of its first component and of that component's monitors. The other components do
/// not show it.
struct HealthWords {
    const char* component;
    const char* monitor;
};

HealthWords healthWords(PageHealth health);

/// Sets the page's first component and its monitors to this state.
void showHealth(Account& account, std::string_view pageId, PageHealth health);

}  // namespace larkspan::simulator
