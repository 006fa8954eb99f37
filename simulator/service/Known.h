#pragma once

#include <string>

#include "account/Account.h"
#include "service/RequestBody.h"

namespace larkspan::simulator {

/// What was looked for by the id in the path; a `Refusal` with the status 404 where there is no such record.
template <typename Record>
Record& known(Record* record)
{
    if (!record) throw Refusal(404, "Not found");
    return *record;
}

/// The id of a page that a request's body names; a `Refusal` with the status 422 where the account has no such page.
inline std::string knownPage(Account& account, const std::string& id)
{
    if (!account.findPage(id)) throw Refusal(422, "There is no such status page.");
    return id;
}

/// The same for a page that a query names, with the status 400.
inline std::string knownPageOfQuery(Account& account, const std::optional<std::string>& id)
{
    if (!id || !account.findPage(*id)) throw Refusal(400, "There is no such status page.");
    return *id;
}

}  // namespace larkspan::simulator
