#pragma once

#include <type_traits>
#include <utility>

#include "api/APIError.h"
#include "api/RequestEngine.h"
#include "model/bodies/EmptyResponse.h"
#include "model/json/JSONDecoder.h"
#include "model/json/JSONEncoder.h"

namespace larkspan::api {

template <typename Result>
support::Task<Result> RequestEngine::sendRequest(Call call, std::stop_token stop)
{
    return support::on(ports_.executor, sendAndDecode<Result>(std::move(call), std::move(stop)));
}

template <typename Result, typename Body>
support::Task<Result> RequestEngine::sendRecord(Call call, Body body)
{
    return support::on(ports_.executor, encodeAndSend<Result>(std::move(call), std::move(body)));
}

template <typename Result>
support::Task<Result> RequestEngine::sendAndDecode(Call call, std::stop_token stop)
{
    auto sending = send(std::move(call), std::move(stop));
    const std::string body = co_await std::move(sending);
    if (body.empty()) {
        if constexpr (std::is_same_v<Result, model::EmptyResponse>) co_return Result{};
        throw APIError::invalidResponse();
    }
    const model::JSONDecoder decoder(ports_.clock);
    co_return decoder.decodeResult<Result>(body);
}

template <typename Result, typename Body>
support::Task<Result> RequestEngine::encodeAndSend(Call call, Body body)
{
    const model::JSONEncoder encoder;
    call.body = encoder.encode(body);
    auto sending = sendAndDecode<Result>(std::move(call), {});
    Result answer = co_await std::move(sending);
    co_return answer;
}

}  // namespace larkspan::api
