#pragma once

#include <algorithm>
#include <string>

#include "account/Account.h"
#include "account/Seed.h"
#include "service/Exchange.h"

namespace larkspan::simulator::samples {

inline const std::string key = "kst_test_key";
inline const std::string keyWithoutRights = "kst_read_nothing";
inline const std::string pagesPath = "/user/api/v1/status-pages";
inline const std::string overviewPath = "/user/api/status-pages/status";

/// An account with this number of seeded pages, a key with all rights and one without any.
inline Account account(std::size_t pages = 3)
{
    return {{{key, KeyRights::full}, {keyWithoutRights, KeyRights::none}}, seededPages(pages)};
}

/// A request as the client sends it.
inline Request request(std::string target, std::string method = "GET", const std::string& withKey = key)
{
    return {std::move(method), std::move(target), {{"Authorization", "Bearer " + withKey}, {"X-API-Key", withKey}}, {}};
}

/// A request with a body, written with apostrophes in place of quotation marks.
inline Request requestWithBody(const std::string& target, const std::string& method, std::string body)
{
    std::ranges::replace(body, '\'', '"');
    auto made = request(target, method);
    made.body = std::move(body);
    return made;
}

}  // namespace larkspan::simulator::samples
