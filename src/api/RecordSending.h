#pragma once

#include <utility>

#include "api/KestruneAPI.h"

namespace larkspan::api {

/// A request with a record as its body. Runs on the client's executor, where the record is encoded too.
template <typename T, typename Record>
support::Task<T> KestruneAPI::sendRecord(Call call, Record body)
{
    call.body = encoder_.encode(body);
    auto sending = sendRequest<T>(std::move(call));
    T answer = co_await std::move(sending);
    co_return answer;
}

}  // namespace larkspan::api
