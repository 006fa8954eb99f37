#pragma once

#include <string_view>

#include "account/StatusPage.h"

namespace larkspan::simulator {

struct Account;

/// What a page's first component and its monitors say of how the page stands. Nobody sees it of the others.
struct HealthWords {
    const char* component;
    const char* monitor;
};

HealthWords healthWords(PageHealth health);

/// Lets the page's first component and its monitors say so.
void showHealth(Account& account, std::string_view pageId, PageHealth health);

}  // namespace larkspan::simulator
