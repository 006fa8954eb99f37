#pragma once

#include <string>

#include "account/Account.h"
#include "service/RequestBody.h"

namespace larkspan::simulator {

/// Returns the record that was found by the id in the path; throws a `Refusal` with the status 404 if there is none.
template <typename Record>
Record& known(Record* record)
{
    if (!record) throw Refusal(404, "Not found");
    return *record;
}

/// Returns the id of a page from a request's body; throws a `Refusal` with the status 422 if the account has no such
/// page.
inline std::string knownPage(Account& account, const std::string& id)
{
    if (!account.findPage(id)) throw Refusal(422, "There is no such status page.");
    return id;
}

/// The same for a page in a query, with the status 400.
inline std::string knownPageOfQuery(Account& account, const std::optional<std::string>& id)
{
    if (!id || !account.findPage(*id)) throw Refusal(400, "There is no such status page.");
    return *id;
}

}  // namespace larkspan::simulator
