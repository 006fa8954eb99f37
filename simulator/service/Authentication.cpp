#include "service/Authentication.h"

#include "account/Account.h"

namespace larkspan::simulator {

std::optional<int> refusal(const Request& request, const Account& account)
{
    constexpr std::string_view scheme = "Bearer ";
    const auto authorization = request.header("Authorization");
    const auto key = request.header("X-API-Key");
    if (!authorization || !key || !authorization->starts_with(scheme)) return 401;
    if (authorization->substr(scheme.size()) != *key) return 401;

    const auto known = account.keys.find(*key);
    if (known == account.keys.end()) return 401;
    if (known->second == KeyRights::none) return 403;
    return std::nullopt;
}

}  // namespace larkspan::simulator
