#include "account/Account.h"

#include <algorithm>

namespace larkspan::simulator {

StatusPage* Account::findPage(std::string_view id)
{
    const auto found = std::ranges::find(statusPages, id, &StatusPage::id);
    return found == statusPages.end() ? nullptr : &*found;
}

}  // namespace larkspan::simulator
